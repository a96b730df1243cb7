// Keeps the toolkit's remarks about its own surroundings off standard error, but for why there is no window.
#pragma once

namespace bv {

// To be called before the application object is made. Where that finds no window system the program ends with status 2
// and one line on standard error that says why. Other messages go where they went before.
void installMessageFilter();

} // namespace bv
