#include "desktop/Apparence.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QApplication qt{argc, argv};
    InstallerApparence();
    return RUN_ALL_TESTS();
}
