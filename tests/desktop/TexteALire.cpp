// Text boxes to be read and clicked as a whole, and the exercises that are made of them.
#include "tests/desktop/Atelier.h"

#include "core/FichierChamps.h"
#include "desktop/Composants.h"
#include "desktop/NomsEntendus.h"
#include "exercises/vocabulary/frmDico.h"
#include "exercises/vocabulary/frmThèmes.h"
#include "exercises/vocabulary/frmThèmes2.h"

#include <QTemporaryDir>

#include <fstream>

namespace tirelune {

namespace {

const std::initializer_list<QSize> TaillesDEcran{{800, 600}, {1024, 768}, {1366, 768}, {1920, 1080}};

struct EcranALire final : EcranEssai {
    using EcranEssai::EcranEssai;
    TextBox txtMots{*this, "txtMots", {.Caption = u" gai - content - ", .ALire = true}};
    TextBox txtAutres{*this, "txtAutres", {.Caption = u"triste", .ALire = true}};
    Label lblSeul{*this, "lblSeul", u"seul"};
    Arrangement Disposer() override
    {
        return Colonne{Extensible(Ligne{Extensible(Pile{txtMots}), Extensible(Pile{txtAutres})}),
                       Extensible(Ligne{Extensible(Pile{lblSeul})})};
    }
};

class TextesALire : public Atelier {
protected:
    EcranALire écran{application};
    int clics = 0;
};

// The lexicon in a folder of its own, every text as long as it may be.
class TextesLongs : public Atelier {
protected:
    TextesLongs() { application.état.CheminTexteElève = DepuisQString(dossier.path()) + u"/"; }

    void EcrireLexique(VueTexte nom, const std::vector<Texte>& champs)
    {
        std::ofstream{EnChemin(application.état.CheminTexteElève + Texte{nom}), std::ios::binary}
            << ComposerChamps(champs).value();
    }
    // Every text in sight is there as a whole, inside the window, at every size.
    void VérifierTextes()
    {
        for (const auto& taille : TaillesDEcran) {
            Devant().setGeometry({QPoint{0, 0}, taille});
            Mettre();
            QCoreApplication::sendPostedEvents();
            for (auto* étiquette : Devant().findChildren<Etiquette*>()) {
                if (!étiquette->isVisible())
                    continue;
                const QRect place{étiquette->mapTo(&Devant(), QPoint{0, 0}), étiquette->size()};
                const auto où = étiquette->objectName().toStdString() + ", " + std::to_string(taille.width());
                EXPECT_TRUE(étiquette->MontreTout()) << où;
                EXPECT_TRUE(Devant().rect().contains(place)) << où;
            }
        }
    }

    QTemporaryDir dossier;
    frmExercices choix{application};
};

// 200 characters of a definition, told apart by their number.
Texte DeuxCents(int rang)
{
    auto texte = EnTexte(rang) + u" : ";
    while (texte.size() < 200)
        texte += u"le petit chat de la voisine dort ";
    texte.resize(200);
    return texte;
}

} // namespace

TEST_F(TextesALire, SeLitSansSesBlancsEtPorteSonSigne)
{
    écran.txtMots.Click = [] {};
    Avec(écran, [&] {
        auto& étiquette = Widget<Etiquette>(écran.txtMots);
        EXPECT_EQ(étiquette.text(), "gai - content -");
        EXPECT_TRUE(écran.txtMots.Locked);
        écran.txtMots.BackColor = Jaune;
        écran.txtMots.Text = u"bon";
        Mettre();
        EXPECT_EQ(étiquette.text(), "bon");
        EXPECT_EQ(étiquette.signe, Signe::Choisi);
        EXPECT_EQ(NomEntendu(écran.txtMots), "bon, choisi");
        écran.txtMots.Text = Texte{};
        Mettre();
        EXPECT_EQ(NomEntendu(écran.txtMots), "vide, choisi");
    });
}

TEST_F(TextesALire, SeCliqueParLaSourisEtLeClavierTantQuIlRépond)
{
    écran.txtMots.Click = [&] { ++clics; };
    Avec(écran, [&] {
        auto& étiquette = Widget<Etiquette>(écran.txtMots);
        Cliquer(écran.txtMots);
        EXPECT_EQ(clics, 1);
        étiquette.setFocus();
        QTest::keyClick(&étiquette, Qt::Key_Space);
        QTest::keyClick(&étiquette, Qt::Key_Return);
        EXPECT_EQ(clics, 3);
        QTest::keyClicks(&étiquette, "abc");
        EXPECT_EQ(écran.txtMots.Text, u" gai - content - ");
        EXPECT_EQ(étiquette.cursor().shape(), Qt::PointingHandCursor);
        EXPECT_FALSE(Widget<Etiquette>(écran.txtAutres).EstCliquable());
        EXPECT_EQ(Widget(écran.txtAutres).focusPolicy(), Qt::NoFocus);
    });
}

TEST_F(TextesALire, CeQuiEstCachéLaisseSaPlaceAuReste)
{
    Avec(écran, [&] {
        const auto mots = Widget(écran.txtMots).size();
        EXPECT_NEAR(Widget(écran.txtAutres).width(), mots.width(), 1);
        écran.txtAutres.Visible = false;
        Mettre();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        EXPECT_GT(Widget(écran.txtMots).width(), 2 * mots.width() - 1);
        EXPECT_EQ(Widget(écran.txtMots).height(), mots.height());
        écran.lblSeul.Visible = false;
        Mettre();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        EXPECT_GT(Widget(écran.txtMots).height(), 2 * mots.height() - 1);
        écran.lblSeul.Visible = true;
        écran.txtAutres.Visible = true;
        Mettre();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        EXPECT_EQ(Widget(écran.txtMots).size(), mots);
    });
}

TEST_F(TextesLongs, DicoMontreTout)
{
    std::vector<Texte> champs;
    for (int i = 0; i < 12; ++i) {
        champs.insert(champs.end(), {Texte{Marqueur}, u"anticonstitutionnellement" + EnTexte(i), DeuxCents(i), u""});
    }
    EcrireLexique(u"DicPrinc.dat", champs);
    champs.resize(4);
    EcrireLexique(u".dic", champs); // of the text that has no title here
    frmDico écran{choix};
    Avec(écran, [&] {
        ASSERT_FALSE(écran.notice.Cadre.Visible);
        VérifierTextes();
        Cliquer(écran.txtDéf(0));
        VérifierTextes();
        Cliquer(écran.cmdSuivant);
        ASSERT_TRUE(écran.lblMot(9).Visible);
        VérifierTextes();
    });
}

TEST_F(TextesLongs, LesThèmesMontrentTout)
{
    std::vector<Texte> champs;
    for (int i = 0; i < 10; ++i) {
        champs.insert(champs.end(), {Texte{Marqueur}, u"les animaux et les plantes " + EnTexte(i),
                                     u"de la forêt et de la montagne " + EnTexte(i)});
        for (int k = 0; k < 8; ++k)
            champs.push_back(u"la grenouille verte " + EnTexte(8 * i + k));
    }
    EcrireLexique(u"Familles.dat", champs);
    const auto jouer = [&](auto& écran, auto& cases) {
        Avec(écran, [&] {
            ASSERT_FALSE(écran.notice.Cadre.Visible);
            VérifierTextes();
            for (int i = 0; i < RangéesDuJeu; ++i) { // as after the correction of ten wrong rows
                cases(i).Caption = écran.lblCorrigé(i).Caption();
                cases(i).BackColor = Rouge;
                écran.lblCorrigé(i).Visible = true;
            }
            VérifierTextes();
        });
    };
    frmThèmes un{choix};
    jouer(un, un.lblMot);
    frmThèmes2 deux{choix};
    jouer(deux, deux.lblRéponse);
}

} // namespace tirelune
