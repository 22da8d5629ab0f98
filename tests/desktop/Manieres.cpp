// The look that all windows share.
#include "tests/desktop/Atelier.h"

#include <QIcon>

namespace tirelune {

namespace {

struct EcranUn final : EcranEssai {
    using EcranEssai::EcranEssai;
    Button cmdOk{*this, "cmdOk", u"&Ok"};
    Arrangement Disposer() override { return Colonne{cmdOk}; }
};

class Manières : public Atelier {
protected:
    EcranUn écran{application};
};

} // namespace

TEST_F(Manières, ChaqueFenêtrePorteLIcôneDuProgramme)
{
    Avec(écran, [&] {
        const auto icône = Devant().windowIcon();
        for (const int côté : {16, 32, 48, 128}) {
            const auto image = icône.pixmap(côté).toImage();
            ASSERT_EQ(image.width(), côté);
            EXPECT_LT(image.pixelColor(0, 0).alpha(), 128) << "round corners";
            EXPECT_EQ(image.pixelColor(côté / 2, côté - 2).alpha(), 255);
        }
    });
}

} // namespace tirelune
