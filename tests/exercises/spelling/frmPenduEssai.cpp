#include "exercises/spelling/frmPendu.h"

#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

#include <set>

namespace tirelune {

namespace {

constexpr int IndexPendu = 21;

frmPendu& OuvrirPendu(Banc& banc, std::vector<Texte> mots)
{
    banc.Vocabulaire(std::move(mots));
    banc.Index(IndexPendu);
    TirerVarié(banc);
    return banc.Ouvrir<frmPendu>();
}

void Cliquer(frmPendu& écran, VueTexte lettres)
{
    for (const auto lettre : lettres)
        écran.lblLettre(lettre - u'a').Cliquer();
}

bool Taper(frmPendu& écran, char16_t caractère)
{
    return écran.Taper({.Caractère = caractère, .Code = caractère});
}

int Traits(const frmPendu& écran)
{
    int nombre = 0;
    while (nombre < 10 && écran.Ligne(nombre).Visible)
        ++nombre;
    for (int i = nombre; i < 10; ++i)
        EXPECT_FALSE(écran.Ligne(i).Visible);
    return nombre;
}

Texte Masqués(std::size_t nombre)
{
    return Texte(nombre, Masque);
}

} // namespace

TEST(Pendu, OuverturePréparePremierMot)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    EXPECT_EQ(écran.Caption, u"Le Pendu / Léa");
    EXPECT_EQ(écran.lblRéf.Caption, u"chat");
    EXPECT_EQ(écran.lblMot.Caption, Masqués(4));
    EXPECT_EQ(écran.lblMotMaj.Caption, Masqués(4));
    EXPECT_EQ(écran.lblMot.BackColor, Bleu);
    EXPECT_EQ(écran.lblMot.ForeColor, Cyan);
    EXPECT_EQ(Traits(écran), 0);
    EXPECT_TRUE(écran.imgVisage.Visible);
    EXPECT_EQ(écran.imgVisage.Picture(), Visage(0));
    EXPECT_FALSE(écran.notice.Cadre.Visible);
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    EXPECT_EQ(écran.cmbMots.ListCount(), 0);
}

TEST(Pendu, TextesBulleEtCouleursDuDépart)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    EXPECT_EQ(écran.Label1.Caption, u"Choisis un caractère en cliquant sur la lettre ou en utilisant le clavier.");
    EXPECT_EQ(écran.cmdSuivant.Caption, u"&Suivant");
    EXPECT_EQ(écran.cmdSuivant.ToolTipText, u" Clique sur ce bouton si la phrase te semble correcte. ");
    EXPECT_EQ(écran.lblMot.Police, u"Comic Sans MS");
    EXPECT_EQ(écran.lblMotMaj.Police, u"Comic Sans MS");
    VérifierPointsDeDépart(écran.lblPoints);
}

TEST(Pendu, LettresOntLeurBulleEtLeurCouleur)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    EXPECT_EQ(écran.lblLettre(0).Caption, u"a");
    EXPECT_EQ(écran.lblLettre(0).ToolTipText, u" A ");
    EXPECT_EQ(écran.lblLettre(25).Caption, u"z");
    EXPECT_EQ(écran.lblLettre(25).ToolTipText, u" Z ");
    for (int i = 0; i < 26; ++i) {
        const bool voyelle = Contient(u"aeiouy", écran.lblLettre(i).Caption().front());
        EXPECT_EQ(écran.lblLettre(i).ForeColor, voyelle ? Rouge : Bleu);
        EXPECT_EQ(écran.lblLettre(i).Police, u"Comic Sans MS");
        EXPECT_EQ(écran.lblLettre(i).BackColor, CouleurAuto);
    }
}

TEST(Pendu, SansVocabulaireLeCadreDeSortieCouvreTout)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {});
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Caption, u"Pas de vocabulaire sélectionné");
    EXPECT_EQ(écran.notice.Phrase.Caption, u"L'exercice est terminé.");
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Abandonner");
    EXPECT_EQ(écran.notice.Cadre.Width, écran.Width());
    EXPECT_EQ(écran.notice.Cadre.Height, écran.Height());
    Cliquer(écran, u"abcdefghijk");
    for (const char16_t lettre : Texte{u"abcdefghijk"})
        Taper(écran, lettre);
    EXPECT_EQ(Traits(écran), 0);
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    EXPECT_EQ(écran.Focus(), &écran.notice.Bouton);
    EXPECT_FALSE(Taper(écran, u' ')); // goes on to the button
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexPendu), u"");
}

TEST(Pendu, UnSeulMotTrouvéDonneDix)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    Cliquer(écran, u"chat");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_EQ(écran.cmdSuivant.Caption, u"&Quitter");
    EXPECT_EQ(écran.Focus(), &écran.cmdSuivant);
    écran.cmdSuivant.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexPendu), u"10");
}

TEST(Pendu, UnSeulMotPerduDonneZéro)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    Cliquer(écran, u"zzzzzzzzzz");
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(banc.Note(IndexPendu), u"0");
}

TEST(Pendu, SeptMotsEnDonnentCinqDifférents)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"bal", u"bec", u"bol", u"bon", u"bus", u"car", u"col"});
    EXPECT_EQ(écran.cmbMots.ListCount(), 4);
    std::set<Texte> joués;
    for (int i = 0; i < 5; ++i) {
        joués.insert(écran.lblRéf.Caption);
        Cliquer(écran, écran.lblRéf.Caption());
        EXPECT_EQ(écran.cmdSuivant.Caption, i < 4 ? u"&Suivant" : u"&Quitter");
        écran.cmdSuivant.Cliquer();
    }
    EXPECT_EQ(joués.size(), 5U);
    EXPECT_EQ(banc.Note(IndexPendu), u"10");
}

TEST(Pendu, MotsRépétésNeSeJouentQuUneFois)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"bal", u"bal", u"bal", u"bec", u"bec"});
    EXPECT_EQ(écran.cmbMots.ListCount(), 1);
    Cliquer(écran, écran.lblRéf.Caption());
    écran.cmdSuivant.Cliquer();
    Cliquer(écran, u"zzzzzzzzzz");
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(banc.Note(IndexPendu), u"5");
}

TEST(Pendu, MotEnJeuEstTiréParmiCeuxQuiRestent)
{
    Banc banc;
    banc.Hasards({0.0, 0.5, 0.99}); // bal, bec; then the second of the two
    auto& écran = OuvrirPendu(banc, {u"bal", u"bec"});
    EXPECT_EQ(écran.lblRéf.Caption, u"bec");
    EXPECT_EQ(écran.cmbMots.List(0), u"bal");
}

TEST(Pendu, LettreDécouvreToutesSesPlacesAccentuéesOuNon)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"Elève-été"});
    Cliquer(écran, u"e");
    EXPECT_EQ(écran.lblMot.Caption, Texte{u"E"} + Masque + u"è" + Masque + u"e-é" + Masque + u"é");
    EXPECT_EQ(écran.lblMotMaj.Caption, Texte{u"E"} + Masque + u"E" + Masque + u"E-E" + Masque + u"E");
    EXPECT_EQ(Traits(écran), 0);
}

TEST(Pendu, ChaqueLettreALaListeDeSesAccents)
{
    Banc banc;
    const Texte accents = u"àâäÂÀçÇéèêëÊËÈÉîïÎÏôöÔÖùûüÛÜÙ";
    auto& écran = OuvrirPendu(banc, {accents});
    Cliquer(écran, u"aceiou");
    EXPECT_EQ(écran.lblMot.Caption, accents);
    EXPECT_EQ(écran.lblMotMaj.Caption, u"AAAAACCEEEEEEEEIIIIOOOOUUUUUU");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(Pendu, TraitDUnionEstDonnéMaisNiLeBlancNiLApostrophe)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"l'arc-en ciel"});
    EXPECT_EQ(écran.lblMot.Caption, Masqués(5) + u"-" + Masqués(7));
    EXPECT_EQ(écran.lblMotMaj.Caption, écran.lblMot.Caption());
}

TEST(Pendu, MotDeSignesNePeutQueSePerdre)
{
    for (const Texte mot : {u"l'eau", u"cœur", u"A4"}) {
        Banc banc;
        auto& écran = OuvrirPendu(banc, {mot});
        Cliquer(écran, u"abcdefghijklmnopqrstuvwxyz");
        EXPECT_TRUE(écran.cmdSuivant.Visible);
        EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
        EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
        EXPECT_EQ(écran.lblMot.Caption, mot);
        EXPECT_EQ(écran.lblMot.ForeColor, Rouge);
    }
}

TEST(Pendu, LettresFaussesDessinentLesTraitsEtChangentLeVisage)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    static constexpr std::array<int, 10> Visages{0, 1, 1, 2, 2, 2, 3, 3, 3, 4};
    for (int s = 0; s < 10; ++s) {
        Cliquer(écran, u"z");
        EXPECT_EQ(Traits(écran), s + 1);
        EXPECT_EQ(écran.imgVisage.Picture(), Visage(Visages[static_cast<std::size_t>(s)]));
    }
}

TEST(Pendu, NeuvièmeLettreFausseLaisseLeMotEnJeu)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    Cliquer(écran, u"zzzzzzzzz");
    EXPECT_TRUE(écran.Ligne(8).Visible);
    EXPECT_FALSE(écran.Ligne(9).Visible);
    EXPECT_EQ(écran.imgVisage.Picture(), écran.imgRéf(3).Picture());
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    Cliquer(écran, u"chat");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(Pendu, DixièmeLettreFausseFaitPerdreLeMot)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"été"});
    Cliquer(écran, u"zzzzzzzzzz");
    EXPECT_EQ(écran.lblMot.Caption, u"été");
    EXPECT_EQ(écran.lblMot.BackColor, Blanc);
    EXPECT_EQ(écran.lblMot.ForeColor, Rouge);
    EXPECT_FALSE(écran.lblMotMaj.Visible);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_TRUE(écran.cmdSuivant.Visible);
}

TEST(Pendu, LettreJusteRépétéeNeCoûteRien)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    Cliquer(écran, u"ccc");
    EXPECT_EQ(Traits(écran), 0);
}

TEST(Pendu, MotSuivantEffaceLeDessin)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"bal", u"bec"});
    Cliquer(écran, u"zzzzzzzzzz");
    écran.cmdSuivant.Cliquer();
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    EXPECT_EQ(Traits(écran), 0);
    EXPECT_EQ(écran.imgVisage.Picture(), Visage(0));
    EXPECT_TRUE(écran.lblMotMaj.Visible);
    EXPECT_EQ(écran.lblMot.BackColor, Bleu);
    EXPECT_EQ(écran.lblMot.Caption, Masqués(3));
}

TEST(Pendu, ClicsEtTouchesQuandLeMotEstFiniNeChangentRien)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"bal", u"bec"});
    Cliquer(écran, écran.lblRéf.Caption());
    Cliquer(écran, u"zzzzzzzzzzz");
    for (const char16_t lettre : Texte{u"zzzzzzzzzzz"})
        EXPECT_TRUE(Taper(écran, lettre));
    EXPECT_EQ(Traits(écran), 0);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
}

TEST(Pendu, ToucheAccentuéeOuCapitaleVautSaLettre)
{
    for (const auto& [touches, lettre] : std::initializer_list<std::pair<Texte, char16_t>>{
             {u"aàâäAÀ", u'a'},
             {u"cçCÇ", u'c'},
             {u"eéèêëEÊËÈÉ", u'e'},
             {u"iîïIÎÏ", u'i'},
             {u"oôöOÔÖ", u'o'},
             {u"uùûUÛÜ", u'u'},
             {u"bB", u'b'},
         }) {
        for (const auto touche : touches) {
            Banc banc;
            auto& écran = OuvrirPendu(banc, {Texte{lettre, u'z'}});
            EXPECT_TRUE(Taper(écran, touche));
            EXPECT_EQ(écran.lblMot.Caption, (Texte{lettre, Masque})) << EnUtf8(Texte{touche});
        }
    }
}

TEST(Pendu, ToucheSansLettreNeFaitRienEtNePassePas)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"Âgüaù"});
    for (const char16_t touche : Texte{u"ÂÄüœ1-'. \r"})
        EXPECT_TRUE(Taper(écran, touche));
    EXPECT_EQ(écran.lblMot.Caption, Masqués(5));
    EXPECT_EQ(Traits(écran), 0);
    Taper(écran, u'a');
    Taper(écran, u'u'); // uncovers what those keys could not
    EXPECT_EQ(écran.lblMot.Caption, Texte{u"Â"} + Masque + u"üaù");
}

TEST(Pendu, ToucheFausseDessineUnTrait)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    Taper(écran, u'Z');
    EXPECT_EQ(Traits(écran), 1);
}

TEST(Pendu, TouchesDeDéplacementRestentAuClavier)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    for (const int code : {Touche::Gauche, Touche::Droite, Touche::Haut, Touche::Bas})
        EXPECT_FALSE(écran.Taper({.Caractère = 0, .Code = code}));
    EXPECT_FALSE(Taper(écran, u'\t'));
    EXPECT_TRUE(Taper(écran, Touche::Echappement)) << "les autres touches s'arrêtent ici";
}

TEST(Pendu, EntréeEtBlancVontAuBoutonQuandIlAttend)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    Cliquer(écran, u"chat");
    EXPECT_FALSE(Taper(écran, u'\r'));
    EXPECT_FALSE(Taper(écran, u' '));
    EXPECT_TRUE(Taper(écran, u'e'));
}

TEST(Pendu, DessinMontreLHommeEnRougePuisLaPotenceEnNoirPuisLaCorde)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"chat"});
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(écran.Ligne(i).BorderColor, i < 5 ? Rouge : i < 9 ? Noir : Olive);
    const auto& corde = écran.Ligne(9);
    const auto& poutre = écran.Ligne(7);
    EXPECT_EQ(corde.X1, corde.X2);
    EXPECT_EQ(corde.Y1, poutre.Y1);
    EXPECT_EQ(corde.X1, écran.imgVisage.Left + écran.imgVisage.Width / 2);
    EXPECT_NEAR(corde.Y2, écran.imgVisage.Top, 4);
    EXPECT_GT(écran.Ligne(5).Y1, écran.Ligne(3).Y2); // the ground under the feet
    EXPECT_LT(écran.Ligne(6).X1, écran.Ligne(0).X1); // the post to the left
}

TEST(Pendu, FermetureEnCoursDeMotNEnregistreRien)
{
    Banc banc;
    auto& écran = OuvrirPendu(banc, {u"bal", u"bec"});
    Cliquer(écran, écran.lblRéf.Caption());
    écran.cmdSuivant.Cliquer();
    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexPendu), u"");
}

TEST(Visages, CinqVisagesSontRondsJaunesEtDifférents)
{
    for (int i = 0; i < NombreVisages; ++i) {
        const auto visage = Visage(i);
        EXPECT_EQ(visage.Largeur, 32);
        EXPECT_EQ(visage.Hauteur, 32);
        EXPECT_EQ(visage.Formes.front().Genre, GenreForme::Ellipse);
        EXPECT_EQ(visage.Formes.front().Fond, Jaune);
        EXPECT_EQ(visage.Formes.front().Trait, Noir);
        for (int j = 0; j < i; ++j)
            EXPECT_FALSE(visage == Visage(j));
    }
}

} // namespace tirelune
