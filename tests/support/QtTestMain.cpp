// SPDX-License-Identifier: GPL-2.0-or-later
// main() of the tests that need Qt. Sets a private home folder and a fixed locale, so that the developer's settings
// have no effect. Creates an application object (platform offscreen unless the environment names another), then runs
// GoogleTest.
#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "BVCO_ROOT",
                                 "BVCO_LOG", "CUPS_SERVER", "LPDEST", "PRINTER"})
        qunsetenv(variable);
    qputenv("LC_ALL", "C");
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
