#include "core/Collage.h"

#include <gtest/gtest.h>

namespace tirelune {

TEST(Collage, RienDonneRien)
{
    EXPECT_EQ(NormaliserCollage(u""), u"");
}

TEST(Collage, ToutesLesFinsDeLigneDeviennentCrLf)
{
    EXPECT_EQ(NormaliserCollage(u"a\nb\rc\r\nd\u2028e\u2029f\vg\fh"), u"a\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh");
}

TEST(Collage, ApostrophesTypographiquesDeviennentDroites)
{
    EXPECT_EQ(NormaliserCollage(u"l’été ‘ici’"), u"l'été 'ici'");
}

TEST(Collage, EspacesFinesDeviennentDesBlancs)
{
    EXPECT_EQ(NormaliserCollage(u"Quoi\u202F? Non\u2009!"), u"Quoi ? Non !");
}

TEST(Collage, CaractèresDeCommandeDisparaissentSaufLaTabulation)
{
    EXPECT_EQ(NormaliserCollage(std::u16string_view{u"\0a\tb\x1F"
                                                    u"c\x7F",
                                                    7}),
              u"a\tbc");
}

TEST(Collage, LeResteDemeure)
{
    EXPECT_EQ(NormaliserCollage(u"œuf « à » – 日本 \U0001F600"), u"œuf « à » – 日本 \U0001F600");
}

} // namespace tirelune
