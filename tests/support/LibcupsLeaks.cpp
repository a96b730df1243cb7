// SPDX-License-Identifier: GPL-2.0-or-later
// libcups does not free all that it makes of a PPD's printer presets. Linked into the tests that have it make them.

// Read by the leak checker only.
extern "C" [[gnu::visibility("default")]] const char *__lsan_default_suppressions()
{
    return "leak:_ppdCacheCreateWithPPD\nleak:cupsAddOption\n";
}
