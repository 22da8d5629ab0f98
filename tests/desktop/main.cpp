#include "desktop/Style.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tirelune;

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // whatever display there is or isn't
    // A home of their own: what the user has there decides nothing.
    const QTemporaryDir maison;
    qputenv("HOME", maison.path().toUtf8());
    for (const char* dossier : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
        qunsetenv(dossier);
    QApplication qt{argc, argv};
    InstallerApparence();
    return RUN_ALL_TESTS();
}
