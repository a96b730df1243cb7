// QL70Walk: the walk of the printer's profile table. QL70Helper becomes this program for that one request, so whoever
// asked goes on reading the same process; nobody else calls it.
#include "helper/RequestProgram.h"
#include "walker/Walk.h"

#include <unistd.h>

int main(int argc, char **argv)
{
    // The pieces that the walk writes are its own sequence and not its parent's.
    return bv::runRequestProgram(argc, argv, getpid(), bv::runWalk);
}
