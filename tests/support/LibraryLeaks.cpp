// SPDX-License-Identifier: GPL-2.0-or-later
// What libraries do not free, for the leak checker: libcups what it makes of a PPD's printer presets, Net-SNMP the
// words of a command line that it reads again, and fontconfig its configuration where a program ends without unloading
// it. Linked into the tests that have them make it.

// Read by the leak checker only.
extern "C" [[gnu::visibility("default")]] const char *__lsan_default_suppressions()
{
    return "leak:_ppdCacheCreateWithPPD\nleak:cupsAddOption\nleak:netsnmp_parse_args\nleak:libfontconfig.so\n";
}
