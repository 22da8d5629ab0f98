#include "tests/desktop/Atelier.h"

#include "desktop/Composants.h"
#include "exercises/memory/frmPhotographier.h"
#include "exercises/memory/frmSérie.h"
#include "exercises/spelling/frmPendu.h"

namespace tirelune {

namespace {

constexpr VueTexte Adverbe = u"anticonstitutionnellement";
constexpr VueTexte QuaranteLettres = u"anticonstitutionnellementhospitalisation";
constexpr VueTexte QuatreVingtsSignes =
    u"le petit chat de la voisine dort tout le jour au soleil sur le grand mur de pier";
static_assert(QuaranteLettres.size() == 40 && QuatreVingtsSignes.size() == 80);

const std::initializer_list<QSize> Tailles{{800, 600}, {1024, 768}, {1366, 768}, {1920, 1080}};

// As wide as one another, so that it doesn't matter which of them are drawn.
std::vector<Texte> Variantes(VueTexte mot)
{
    std::vector<Texte> mots;
    for (const char16_t c : VueTexte{u"acenorsuvx"}) {
        mots.emplace_back(mot);
        mots.back().back() = c;
    }
    return mots;
}

class MotsLongs : public Atelier {
protected:
    frmExercices choix{application};

    void Vocabulaire(VueTexte mot)
    {
        choix.cmbVocabulaire.Clear();
        choix.cmbVocabulaire.AddItems(Variantes(mot));
    }
    void Agrandir(QSize taille)
    {
        Devant().setGeometry({QPoint{0, 0}, taille});
        Mettre();
        QCoreApplication::sendPostedEvents();
    }
    // Every caption that is in sight is there as a whole, inside the window.
    void VérifierLégendes(VueTexte mot)
    {
        Mettre();
        QCoreApplication::sendPostedEvents();
        for (auto* étiquette : Devant().findChildren<Etiquette*>()) {
            if (!étiquette->isVisible())
                continue;
            const QRect place{étiquette->mapTo(&Devant(), QPoint{0, 0}), étiquette->size()};
            const auto où =
                étiquette->objectName().toStdString() + ", " + EnUtf8(mot) + ", " + std::to_string(Devant().width());
            EXPECT_TRUE(étiquette->MontreTout()) << où;
            EXPECT_TRUE(Devant().rect().contains(place)) << où;
        }
    }
};

} // namespace

TEST_F(MotsLongs, PhotographierMontreTout)
{
    for (const auto& mot : {Adverbe, QuaranteLettres, QuatreVingtsSignes}) {
        Vocabulaire(mot);
        frmPhotographier écran{choix};
        écran.Chrono.Interval = 1;
        Avec(écran, [&] {
            Cliquer(écran.cmdAfficher);
            for (const auto& taille : Tailles) {
                Agrandir(taille);
                VérifierLégendes(mot);
            }
        });
    }
}

TEST_F(MotsLongs, SérieMontreTout)
{
    for (const auto& mot : {Adverbe, QuaranteLettres, QuatreVingtsSignes}) {
        Vocabulaire(mot);
        frmSérie écran{choix};
        Avec(écran, [&] {
            for (int i = 0; i < écran.lblMot.Nombre(); ++i) { // the sequence is whole, and the answers are told
                écran.lblMot(i).Caption = écran.lblRéponse(i).Caption;
                écran.lblMot(i).Visible = true;
                écran.lblRéponse(i).Visible = true;
            }
            for (const auto& taille : Tailles) {
                Agrandir(taille);
                VérifierLégendes(mot);
                const auto& réponse = Widget(écran.lblRéponse(0));
                const auto bord = réponse.mapTo(&Devant(), réponse.rect().bottomRight()).x();
                EXPECT_LT(bord, Widget(écran.frameChoix).mapTo(&Devant(), QPoint{0, 0}).x());
            }
        });
    }
}

TEST_F(MotsLongs, PenduMontreToutAvantEtAprèsLaDéfaite)
{
    constexpr int LettreAbsente = 'z' - 'a';
    for (const auto& mot : {Adverbe, QuaranteLettres, QuatreVingtsSignes}) {
        Vocabulaire(mot);
        frmPendu écran{choix};
        Avec(écran, [&] {
            for (const auto& taille : Tailles) {
                Agrandir(taille);
                VérifierLégendes(mot);
            }
            for (int coup = 0; coup < écran.Ligne.Nombre(); ++coup)
                Cliquer(écran.lblLettre(LettreAbsente));
            ASSERT_EQ(écran.lblMot.Caption, écran.lblRéf.Caption);
            for (const auto& taille : Tailles) {
                Agrandir(taille);
                VérifierLégendes(mot);
            }
        });
    }
}

} // namespace tirelune
