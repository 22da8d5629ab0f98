#include "exercises/spelling/frmMotsCoupés.h"

#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

namespace tirelune {

namespace {

constexpr int IndexMotsCoupés = 22;
constexpr auto PauseParMot = 1500ms;

std::vector<Texte> MotsLongs(int nombre)
{
    auto mots = Mots(nombre);
    for (std::size_t i = 0; i < mots.size(); ++i)
        mots[i] = static_cast<char16_t>(u'a' + i) + mots[i] + u"ette";
    return mots;
}

frmMotsCoupés& OuvrirMotsCoupés(Banc& banc, std::vector<Texte> mots)
{
    banc.Vocabulaire(std::move(mots));
    banc.Index(IndexMotsCoupés);
    TirerVarié(banc);
    return banc.Ouvrir<frmMotsCoupés>();
}

int RangéesVisibles(const frmMotsCoupés& écran)
{
    int nombre = 0;
    for (int i = 0; i < 10; ++i) {
        nombre += écran.lblMotDébut(i).Visible ? 1 : 0;
        EXPECT_EQ(écran.lblMotDébut(i).Visible(), écran.lblMotFin(i).Visible());
    }
    return nombre;
}

void Choisir(frmMotsCoupés& écran, VueTexte fin)
{
    for (auto& une : écran.lblMotFin) {
        if (une.Caption == fin) {
            une.Cliquer();
            return;
        }
    }
    ADD_FAILURE() << "pas de fin " << EnUtf8(fin);
}

void Réunir(frmMotsCoupés& écran, int rangée, VueTexte fin)
{
    Choisir(écran, fin);
    écran.lblMotDébut(rangée).Cliquer();
}

// Joins the end of the word of `source` to the beginning of `rangée`.
void RéunirFinDe(frmMotsCoupés& écran, int source, int rangée)
{
    Réunir(écran, rangée, VueTexte{écran.lblMot(source).Caption}.substr(3));
}

void ToutRéunir(frmMotsCoupés& écran)
{
    for (int i = 0; i < RangéesVisibles(écran); ++i)
        RéunirFinDe(écran, i, i);
}

} // namespace

TEST(MotsCoupés, TextesBullesEtCouleursDuDépart)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, MotsLongs(5));
    EXPECT_EQ(écran.Caption, u"Mots coupés / Léa");
    EXPECT_EQ(écran.lblConsigne.Caption, u"Clique sur une étiquette de droite, puis sur le mot à compléter dans une "
                                         u"étiquette de gauche. Tu retrouveras ainsi des mots du texte.");
    EXPECT_EQ(écran.lblMotDébut(0).ToolTipText, u" Clique pour enlever la partie finale du mot. ");
    EXPECT_EQ(écran.lblMotFin(0).ToolTipText, u" Cique sur la fin du mot puis sur l'étiquette du début du mot. ");
    EXPECT_EQ(écran.lblPoints(0).ToolTipText, u" Chaque fois que tu te trompes, tu perds 2 points. ");
    VérifierPointsDeDépart(écran.lblPoints);
    EXPECT_EQ(écran.cmdQuitter.Caption, u"J'ai &fini");
    EXPECT_FALSE(écran.lblMot(0).Visible);
    EXPECT_EQ(écran.lblMotFin(0).BackColor, Blanc);
    EXPECT_EQ(écran.lblPassage.Caption, u"");
    EXPECT_FALSE(écran.notice.Cadre.Visible);
}

TEST(MotsCoupés, QuatreMotsLongsMontrentLeCadreDeSortie)
{
    Banc banc;
    banc.Vocabulaire({u"arbres", u"buisson", u"cerise", u"dragon", u"herbe", u"loup"});
    auto& écran = banc.Ouvrir<frmMotsCoupés>(); // and nothing is drawn
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Caption, u"Pas assez de mots de plus de 5 lettres");
    EXPECT_EQ(écran.notice.Phrase.Caption, u"L'exercice est terminé.");
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Abandonner");
    EXPECT_EQ(RangéesVisibles(écran), 0);
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexMotsCoupés), u"");
}

TEST(MotsCoupés, DixMotsEgauxMontrentLeCadreDeSortie)
{
    Banc banc;
    banc.Vocabulaire(std::vector<Texte>(10, u"arbres"));
    EXPECT_TRUE(banc.Ouvrir<frmMotsCoupés>().notice.Cadre.Visible);
}

TEST(MotsCoupés, CinqMotsLongsParmiBeaucoupDeCourtsFontCinqRangées)
{
    Banc banc;
    auto mots = MotsLongs(5);
    for (const auto& court : Mots(40))
        mots.push_back(court);
    auto& écran = OuvrirMotsCoupés(banc, mots);
    EXPECT_EQ(RangéesVisibles(écran), 5);
    EXPECT_EQ(écran.cmbMots.ListCount(), 5);
    for (const auto& court : écran.cmbEliminés.Eléments())
        EXPECT_EQ(std::count(écran.cmbEliminés.Eléments().begin(), écran.cmbEliminés.Eléments().end(), court), 1);
}

TEST(MotsCoupés, MotsRépétésNeFontQuUneRangée)
{
    Banc banc;
    auto mots = MotsLongs(6);
    mots.insert(mots.end(), 20, mots.front());
    auto& écran = OuvrirMotsCoupés(banc, mots);
    EXPECT_EQ(RangéesVisibles(écran), 6);
}

TEST(MotsCoupés, CapitaleOuAccentFaitUnAutreMot)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, {u"dessin", u"Dessin", u"pécher", u"pêcher", u"pecher"});
    EXPECT_EQ(RangéesVisibles(écran), 5);
    ToutRéunir(écran);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"5");
}

TEST(MotsCoupés, DouzeMotsLongsFontDixRangées)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, MotsLongs(12));
    EXPECT_EQ(RangéesVisibles(écran), 10);
    EXPECT_EQ(écran.cmbMots.ListCount(), 10);
}

TEST(MotsCoupés, MotDeSixLettresSeCoupeAuMilieu)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, {u"arbres", u"brutal", u"cerise", u"dragon", u"étoile"});
    std::vector<Texte> fins;
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(écran.lblMotDébut(i).Caption, écran.lblMot(i).Caption().substr(0, 3));
        fins.push_back(écran.lblMotFin(i).Caption);
    }
    std::sort(fins.begin(), fins.end());
    EXPECT_EQ(fins, (std::vector<Texte>{u"gon", u"ile", u"ise", u"res", u"tal"}));
}

TEST(MotsCoupés, LaCoupureTombeOùElleTombe)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, {u"là-haut", u"puisqu'il", u"arc-en-ciel", u"jusqu'à", u"demain"});
    for (int i = 0; i < 5; ++i) {
        if (écran.lblMot(i).Caption == u"là-haut") {
            EXPECT_EQ(écran.lblMotDébut(i).Caption, u"là-");
        }
        if (écran.lblMot(i).Caption == u"puisqu'il") {
            EXPECT_EQ(écran.lblMotDébut(i).Caption, u"pui");
        }
    }
    ToutRéunir(écran);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"5");
}

TEST(MotsCoupés, UneSeuleFinEstChoisieALaFois)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, MotsLongs(5));
    écran.lblMotFin(1).Cliquer();
    écran.lblMotFin(3).Cliquer();
    EXPECT_EQ(écran.lblMotFin(1).BackColor, Blanc);
    EXPECT_EQ(écran.lblMotFin(3).BackColor, Jaune);
    EXPECT_EQ(écran.lblPassage.Caption, écran.lblMotFin(3).Caption);
}

TEST(MotsCoupés, LaFinChoisieRejointLeDébutCliqué)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, MotsLongs(5));
    const Texte fin = écran.lblMotFin(2).Caption;
    const Texte début = écran.lblMotDébut(4).Caption;
    écran.lblMotFin(2).Cliquer();
    écran.lblMotDébut(4).Cliquer();
    EXPECT_EQ(écran.lblMotDébut(4).Caption, début + fin);
    EXPECT_EQ(écran.lblMotFin(2).Caption, u"");
    EXPECT_EQ(écran.lblMotFin(2).BackColor, Blanc);
    EXPECT_EQ(écran.lblPassage.Caption, u"");
    écran.lblMotFin(2).Cliquer();
    EXPECT_EQ(écran.lblMotFin(2).BackColor, Blanc) << "une place vide ne se choisit pas";
}

TEST(MotsCoupés, UnClicSansFinChoisieReprendLaFinALaPremièrePlaceVide)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, MotsLongs(5));
    const Texte premier = écran.lblMotFin(3).Caption;
    const Texte début = écran.lblMotDébut(0).Caption;
    écran.lblMotFin(3).Cliquer();
    écran.lblMotDébut(0).Cliquer();
    écran.lblMotFin(1).Cliquer();
    écran.lblMotDébut(1).Cliquer();
    écran.lblMotDébut(0).Cliquer();
    EXPECT_EQ(écran.lblMotDébut(0).Caption, début);
    EXPECT_EQ(écran.lblMotFin(1).Caption, premier);
    EXPECT_EQ(écran.lblMotFin(3).Caption, u"");
    écran.lblMotDébut(0).Cliquer();
    EXPECT_EQ(écran.lblMotDébut(0).Caption, début) << "trois lettres restent";
}

TEST(MotsCoupés, UnMotEntierNePrendPasDAutreFin)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, MotsLongs(5));
    RéunirFinDe(écran, 0, 0);
    const Texte entier = écran.lblMotDébut(0).Caption;
    Choisir(écran, VueTexte{écran.lblMot(1).Caption}.substr(3));
    écran.lblMotDébut(0).Cliquer();
    EXPECT_EQ(écran.lblMotDébut(0).Caption, entier);
    EXPECT_EQ(écran.lblPassage.Caption, écran.lblMot(1).Caption().substr(3));
    EXPECT_EQ(std::count_if(écran.lblMotFin.begin(), écran.lblMotFin.end(),
                            [](const Label& fin) { return fin.BackColor == Jaune; }),
              1);
}

TEST(MotsCoupés, ToutJusteVautDix)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, MotsLongs(12));
    ToutRéunir(écran);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"10");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"10");
    EXPECT_EQ(écran.cmbMots.ListCount(), 0);
    for (auto& début : écran.lblMotDébut)
        EXPECT_EQ(début.BackColor, Blanc);
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexMotsCoupés), u"10");
}

TEST(MotsCoupés, RangéesFaussesEtIncomplètesRougissent)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, MotsLongs(5));
    RéunirFinDe(écran, 0, 0);
    RéunirFinDe(écran, 1, 2);
    RéunirFinDe(écran, 2, 1);
    RéunirFinDe(écran, 4, 4);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.lblMotDébut(0).BackColor, Blanc);
    EXPECT_EQ(écran.lblMotDébut(1).BackColor, Rouge);
    EXPECT_EQ(écran.lblMotDébut(2).BackColor, Rouge);
    EXPECT_EQ(écran.lblMotDébut(3).BackColor, Rouge) << "restée à trois lettres";
    EXPECT_EQ(écran.lblMotDébut(3).Caption().size(), 3U);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"5");
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(IndexMotsCoupés), u"4");
}

TEST(MotsCoupés, UnDébutCommunPrendLUneOuLAutreFin)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, {u"partie", u"parole", u"cerise", u"dragon", u"étoile"});
    int partie = 0;
    int parole = 0;
    for (int i = 0; i < 5; ++i) {
        if (écran.lblMot(i).Caption == u"partie")
            partie = i;
        if (écran.lblMot(i).Caption == u"parole")
            parole = i;
    }
    RéunirFinDe(écran, parole, partie);
    RéunirFinDe(écran, partie, parole);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
    EXPECT_EQ(écran.lblMotDébut(partie).BackColor, Blanc);
    EXPECT_EQ(écran.lblMotDébut(parole).BackColor, Blanc);
}

TEST(MotsCoupés, LaCorrectionMontreUnMotToutesLesSecondesEtDemie)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, MotsLongs(5));
    std::vector<int> montrés;
    for (int i = 0; i < 5; ++i) {
        banc.plateforme.Prévoir(i * PauseParMot + 100ms, [&] {
            montrés.push_back(0);
            for (int j = 0; j < 5; ++j) {
                montrés.back() += écran.lblMot(j).Visible ? 1 : 0;
                EXPECT_NE(écran.lblMot(j).Visible(), écran.lblMotFin(j).Visible());
            }
            EXPECT_FALSE(écran.cmdQuitter.Visible);
        });
    }
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(montrés, (std::vector<int>{1, 2, 3, 4, 5}));
    EXPECT_TRUE(écran.cmdQuitter.Visible);
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_EQ(écran.lblMot(0).ForeColor, Bleu);
    EXPECT_TRUE(écran.lblMot(0).AutoSize);
    EXPECT_EQ(écran.Focus(), &écran.cmdQuitter);
}

TEST(MotsCoupés, AprèsLaCorrectionLesEtiquettesNeRépondentPlus)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, MotsLongs(5));
    ToutRéunir(écran);
    écran.cmdQuitter.Cliquer();
    const Texte entier = écran.lblMotDébut(0).Caption;
    écran.lblMotDébut(0).Cliquer();
    EXPECT_EQ(écran.lblMotDébut(0).Caption, entier);
}

TEST(MotsCoupés, FermetureDansLaCorrectionNEnregistreRien)
{
    for (const auto délai : {0ms, 700ms, 1500ms, 5999ms}) {
        Banc banc;
        auto& écran = OuvrirMotsCoupés(banc, MotsLongs(5));
        ToutRéunir(écran);
        banc.plateforme.Prévoir(délai, [&] { écran.FermerParCroix(); });
        écran.cmdQuitter.Cliquer();
        EXPECT_FALSE(écran.EstChargé());
        EXPECT_FALSE(écran.cmdQuitter.Visible);
        EXPECT_EQ(banc.Note(IndexMotsCoupés), u"");
    }
}

TEST(MotsCoupés, ClavierVaDeLaFinAuDébutPuisAuBouton)
{
    Banc banc;
    auto& écran = OuvrirMotsCoupés(banc, MotsLongs(5));
    EXPECT_EQ(écran.Focus(), &écran.lblMotFin(0));
    écran.lblMotFin(0).Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.lblMotDébut(0));
    écran.lblMotDébut(0).Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.lblMotFin(1));
    écran.lblMotFin(1).Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.lblMotDébut(1));
    for (int i = 1; i < 5; ++i) {
        écran.lblMotFin(i).Cliquer();
        écran.lblMotDébut(i).Cliquer();
    }
    EXPECT_EQ(écran.Focus(), &écran.cmdQuitter);
}

} // namespace tirelune
