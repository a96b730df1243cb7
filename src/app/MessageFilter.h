// Keeps the toolkit's remarks about its own surroundings off standard error.
#pragma once

namespace bv {

// To be called before the application object is made. Other messages go where they went before.
void installMessageFilter();

} // namespace bv
