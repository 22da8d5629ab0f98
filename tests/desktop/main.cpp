#include "desktop/Apparence.h"

#include <QApplication>

#include <gtest/gtest.h>

using namespace tirelune;

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // whatever display there is or isn't
    QApplication qt{argc, argv};
    InstallerApparence();
    return RUN_ALL_TESTS();
}
