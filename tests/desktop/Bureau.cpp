// What the desktop asks of its programs is done.
#include "desktop/Bureau.h"

#include "desktop/Apparence.h"

#include <QFont>
#include <QPalette>

#include <gtest/gtest.h>

namespace tirelune {

TEST(Bureau, LesLettresUsuellesDUnBureauNAgrandissentRien)
{
    for (const int points : {8, 10, 11, 12})
        EXPECT_EQ(AgrandissementDesLettres(QFont{"Sans", points}, 96), 1) << points;
    EXPECT_EQ(AgrandissementDesLettres(QFont{"Sans", 10}, 72), 1); // never smaller
}

TEST(Bureau, DeGrandesLettresOuBeaucoupDePointsParPouceAgrandissent)
{
    EXPECT_DOUBLE_EQ(AgrandissementDesLettres(QFont{"Sans", 18}, 96), 1.5);
    EXPECT_DOUBLE_EQ(AgrandissementDesLettres(QFont{"Sans", 10}, 120), 1.25);
    EXPECT_EQ(AgrandissementDesLettres(QFont{"Sans", 40}, 192), 2); // there is an end to it
}

TEST(Bureau, SeuleUnePaletteEntièrementContrastéeEnEstUne)
{
    const auto palette = [](const QColor& fond, const QColor& page, const QColor& encre) {
        QPalette une{fond};
        une.setColor(QPalette::Window, fond);
        une.setColor(QPalette::Base, page);
        une.setColor(QPalette::WindowText, encre);
        une.setColor(QPalette::Text, encre);
        return une;
    };
    EXPECT_TRUE(EstContrastée(palette(Qt::black, Qt::black, Qt::white)));
    EXPECT_TRUE(EstContrastée(palette(Qt::white, Qt::white, Qt::black)));
    EXPECT_FALSE(EstContrastée(palette(QColor{0xEF, 0xEF, 0xEF}, Qt::white, Qt::black))); // the toolkit's own
    EXPECT_FALSE(EstContrastée(palette(QColor{0x35, 0x35, 0x35}, Qt::black, Qt::white))); // a dark desktop
}

TEST(Bureau, ToutGranditTantQueLaPlaceSuffit)
{
    const double usuelle = EchellePour({1920, 1080});
    Agrandir(1.1);
    EXPECT_DOUBLE_EQ(EchellePour({1920, 1080}), usuelle * 1.1);
    Agrandir(2);
    EXPECT_DOUBLE_EQ(EchellePour({1920, 1080}), 1.8); // as on 800 x 600, where all finds room
    EXPECT_DOUBLE_EQ(EchellePour({800, 600}), 1);
    EXPECT_LT(EchellePour({640, 480}), 1);
    Agrandir(1);
    EXPECT_DOUBLE_EQ(EchellePour({1920, 1080}), usuelle);
}

} // namespace tirelune
