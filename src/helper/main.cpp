// SPDX-License-Identifier: GPL-2.0-or-later
// QL70Helper: runs one request of the print dialog and prints a one-line verdict.
#include "helper/RequestProgram.h"

#include <unistd.h>

int main(int argc, char **argv)
{
    return bv::runRequestProgram(argc, argv, getppid(), bv::answerRequest);
}
