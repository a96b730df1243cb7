# SPDX-License-Identifier: GPL-2.0-or-later
# Makes a section of its own of the exit statuses in a man page, as readers of man pages expect; help2man makes a part of
# the description of them. Argument: page.
file(READ ${page} text)
string(REPLACE ".SS \"Exit status:\"" ".SH \"EXIT STATUS\"" text "${text}")
file(WRITE ${page} "${text}")
