// QL70Helper: carries out one request of the print dialog and prints one line of verdict.
#include "helper/RequestProgram.h"

#include <unistd.h>

int main(int argc, char **argv)
{
    return bv::runRequestProgram(argc, argv, getppid(), bv::answerRequest);
}
