#include "authoring/lexicon/frmLexique.h"

#include "core/FichierChamps.h"
#include "tests/support/Banc.h"

namespace tirelune {

namespace {

using Champs = std::vector<Texte>;

constexpr VueTexte QuestionAvantDeSupprimer =
    u"Attention : vous allez supprimer cette entrée et tous ses dépendants. Souhaitez-vous continuer ?";
constexpr int Femme = SélecteurMasculin + 1;
constexpr int Synonyme = SélecteurSynonyme + 1;

class LexiqueOuvert : public ::testing::Test {
protected:
    LexiqueOuvert()
    {
        banc.état.CheminTextes = DepuisChemin(banc.dossier) + u"/";
        banc.état.TitreFichierTexte = u"Le phare";
    }

    Banc banc;

    frmLexique& OuvrirLexique() { return banc.Ouvrir<frmLexique>(); }
    // As typed in the field, and Enter.
    static void Entrer(frmLexique& écran, int i, const Texte& mot)
    {
        écran.txtMot(i).RecevoirFocus();
        ASSERT_TRUE(écran.txtMot(i).Saisir(mot));
        écran.txtMot(i).Taper({u'\r', Touche::Entrée});
    }
    static void RenommerEn(frmLexique& écran, int i, const Texte& mot)
    {
        écran.cmdModifier(i).Cliquer();
        ASSERT_TRUE(écran.txtModif.Visible);
        ASSERT_TRUE(écran.txtModif.Saisir(mot));
        écran.txtModif.Taper({u'\r', Touche::Entrée});
    }
    void Supprimer(frmLexique& écran, int i, Réponse réponse = Réponse::Oui)
    {
        banc.AnnoncerBoîte(Texte{QuestionAvantDeSupprimer}, réponse);
        écran.cmdSupprimer(i).Cliquer();
    }
    static std::vector<Champs> Cellules(const Grid& grille)
    {
        std::vector<Champs> rangées;
        for (int rangée = 0; rangée < grille.Rows(); ++rangée) {
            rangées.emplace_back();
            for (int colonne = 0; colonne < grille.Cols(); ++colonne)
                rangées.back().push_back(grille.TextMatrix(rangée, colonne));
        }
        return rangées;
    }
    [[nodiscard]] Champs ChampsDe(const std::string& nom) const
    {
        return DécouperChamps(banc.Lire(nom).value_or("\"aucun fichier\""));
    }
    [[nodiscard]] Texte CheminDe(const std::string& nom) const { return DepuisChemin(banc.dossier / nom); }
};

using Rangées = std::vector<Champs>;

} // namespace

// ---- Opening -----------------------------------------------------------------------------------------------------

TEST_F(LexiqueOuvert, LégendesEtBulles)
{
    auto& écran = OuvrirLexique();
    EXPECT_EQ(écran.Caption, u"Lexique");
    EXPECT_EQ(écran.frameFamilles.Caption, u"Familles de mots");
    EXPECT_EQ(écran.frameSynonymes.Caption, u"Synonymes");
    EXPECT_EQ(écran.frameContraires.Caption, u"Contraires");
    EXPECT_EQ(écran.frameGenre.Caption, u"Genre des noms");
    EXPECT_EQ(écran.frameDictionnaire.Caption, u"Dictionnaire");
    const Champs légendes{u"Thème",
                          u"Sous-thème",
                          u"Mot (Thème/Sous-thème/Mot)",
                          u"Mot référent",
                          u"Synonyme à ajouter",
                          u"Mot référent",
                          u"Contraire à ajouter",
                          u"Masculin",
                          u"Féminin",
                          u"Dictionnaire relatif au texte",
                          u"Dictionnaire général"};
    for (int i = 0; i < NombreDeSélecteurs; ++i) {
        EXPECT_EQ(écran.lblLégende(i).Caption, légendes[static_cast<std::size_t>(i)]);
        EXPECT_TRUE(écran.cmbListe(i).Sorted);
        EXPECT_FALSE(écran.cmdModifier(i).Picture().Formes.empty());
    }
    for (const int i : {0, 1, 3, 5}) {
        EXPECT_EQ(écran.cmdModifier(i).ToolTipText, u" Permet de modifier sans perdre les dépendants. ");
        EXPECT_EQ(écran.cmdSupprimer(i).ToolTipText, u" Supprime le mot et tous ses dépendants. ");
    }
    EXPECT_EQ(écran.cmdSupprimer(7).ToolTipText, u" Supprime le mot et son féminin. ");
    EXPECT_EQ(écran.cmdModifier(9).ToolTipText, u" Permet de modifier sans perdre la définition. ");
    EXPECT_EQ(écran.cmdSupprimer(9).ToolTipText, u" Supprime le mot et sa définition. ");
    EXPECT_EQ(écran.cmdSupprimer(10).ToolTipText, u" Supprime le mot et sa définition des 2 dictionnaires. ");
    EXPECT_EQ(écran.txtMot(0).ToolTipText, u" Il est attendu au moins 4 mots par thème. ");
    EXPECT_EQ(écran.txtMot(2).ToolTipText, u" Ecrivez un déterminant si nécessaire. ");
    EXPECT_EQ(écran.txtMot(7).ToolTipText, u" N'écrivez pas de déterminant. ");
    EXPECT_EQ(écran.cmbListe(10).ToolTipText, u" Compilation des dictionnaires de tous les textes. ");
    EXPECT_EQ(écran.lblDéfinition.Caption, u"Définition(s)");
    EXPECT_EQ(écran.txtDéfinition.ToolTipText, u" Texte limité à 200 caractères. ");
    EXPECT_EQ(écran.lblExemple.Caption, u"Exemple(s)");
    EXPECT_EQ(écran.txtExemple.ToolTipText, u" Ne pas insérer d'exemple pour une véritable recherche de l'élève. ");
    EXPECT_EQ(écran.cmdAttacher.Caption, u"A&ttacher");
    EXPECT_EQ(écran.cmdAttacher.ToolTipText, u" Insère le mot dans le dictionnaire relatif au texte. ");
    EXPECT_EQ(écran.cmdEnregistrer.Caption, u"&Enregistrer");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_EQ(écran.cmdQuitter.ToolTipText, u" Enregistre automatiquement les modifications avant de quitter. ");
    EXPECT_EQ(écran.Label1.Caption, u"Après chaque saisie, validez en");
    EXPECT_EQ(écran.Label2.Caption, u"appuyant sur ENTREE.");
}

TEST_F(LexiqueOuvert, SansAucunFichierToutEstVide)
{
    auto& écran = OuvrirLexique();
    for (int i = 0; i < NombreDeSélecteurs; ++i) {
        EXPECT_EQ(écran.txtMot(i).Text, u"");
        EXPECT_EQ(écran.cmbListe(i).ListCount(), 0);
    }
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    for (const auto* nom :
         {"Familles.dat", "Synonymes.dat", "Contraires.dat", "Genre.dat", "Le phare.dic", "DicPrinc.dat"})
        EXPECT_EQ(banc.Lire(nom), "") << nom;
}

TEST_F(LexiqueOuvert, LePremierMotDeChaqueListeSeMontreAvecCeQuiEnDépend)
{
    banc.EcrireChamps("Familles.dat", {u"*", u"mer", u"bateaux", u"voile", u"*", u"eau", u"", u"pluie", u"goutte", u"*",
                                       u"mer", u"", u"vague"});
    banc.EcrireChamps("Synonymes.dat", {u"*", u"content", u"ravi", u"gai", u"*", u"beau", u"joli"});
    banc.EcrireChamps("Contraires.dat", {u"*", u"ancien", u"récent"});
    banc.EcrireChamps("Genre.dat", {u"*", u"roi", u"reine", u"*", u"chat"});
    auto& écran = OuvrirLexique();
    EXPECT_EQ(écran.cmbListe(0).Eléments(), (Champs{u"eau", u"mer"}));
    EXPECT_EQ(écran.txtMot(0).Text, u"eau");
    EXPECT_EQ(écran.txtMot(1).Text, u"-");
    EXPECT_EQ(écran.cmbListe(2).Eléments(), (Champs{u"goutte", u"pluie"}));
    EXPECT_EQ(écran.txtMot(2).Text, u"goutte");
    EXPECT_EQ(écran.txtMot(3).Text, u"beau");
    EXPECT_EQ(écran.txtMot(4).Text, u"joli");
    EXPECT_EQ(écran.txtMot(5).Text, u"ancien");
    EXPECT_EQ(écran.txtMot(6).Text, u"récent");
    EXPECT_EQ(écran.txtMot(7).Text, u"chat");
    EXPECT_EQ(écran.txtMot(8).Text, u"");

    écran.cmbListe(0).Choisir(1);
    EXPECT_EQ(écran.cmbListe(1).Eléments(), (Champs{u"bateaux"}));
    EXPECT_EQ(écran.cmbListe(2).Eléments(), (Champs{u"vague", u"voile"})) << "ceux du thème sans sous-thème aussi";
}

TEST_F(LexiqueOuvert, UnMotDuTexteRevientDansLeDictionnaireGénéralÀLOuverture)
{
    banc.EcrireChamps("DicPrinc.dat", {u"*", u"bateau", u"Flotte.", u""});
    banc.EcrireChamps("Le phare.dic",
                      {u"*", u"phare", u"Une tour.", u"Le phare luit.", u"*", u"bateau", u"À moi.", u""});
    auto& écran = OuvrirLexique();
    EXPECT_EQ(écran.cmbListe(9).Eléments(), (Champs{u"bateau", u"phare"}));
    EXPECT_EQ(écran.cmbListe(10).Eléments(), (Champs{u"bateau", u"phare"}));
    EXPECT_EQ(écran.txtDéfinition.Text, u"Flotte.") << "le dictionnaire général garde la sienne";
    écran.cmbListe(9).Choisir(1);
    EXPECT_EQ(écran.txtMot(10).Text, u"phare");
    EXPECT_EQ(écran.txtDéfinition.Text, u"Une tour.");
    EXPECT_EQ(écran.txtExemple.Text, u"Le phare luit.");
    EXPECT_FALSE(banc.état.MotExistant);
}

TEST_F(LexiqueOuvert, UnMotÀMajusculeDUnFichierFaitMainNEstJamaisCeluiQueLEditeurGarde)
{
    banc.EcrireChamps("Synonymes.dat", {u"*", u"Content", u"gai"});
    auto& écran = OuvrirLexique();
    EXPECT_EQ(Cellules(écran.fgSynonymes), (Rangées{{u"Content", u"gai"}})) << "l'ouverture n'ajoute rien";
    Entrer(écran, SélecteurSynonyme, u"Content");
    EXPECT_EQ(Cellules(écran.fgSynonymes), (Rangées{{u"Content", u"gai"}, {u"content", u""}}));
    EXPECT_EQ(écran.txtMot(Synonyme).Text, u"");
}

// ---- Typing ------------------------------------------------------------------------------------------------------

TEST_F(LexiqueOuvert, UneMajusculeTapéeDevientMinusculeEtCelleDUneModificationReste)
{
    auto& écran = OuvrirLexique();
    Entrer(écran, SélecteurMasculin, u"  Éric ");
    EXPECT_EQ(écran.txtMot(SélecteurMasculin).Text, u"éric");
    EXPECT_EQ(écran.fgGenre.TextMatrix(0, ColonneMasculin), u"éric");
    RenommerEn(écran, SélecteurMasculin, u" Éric ");
    EXPECT_EQ(écran.fgGenre.TextMatrix(0, ColonneMasculin), u"Éric");
    EXPECT_EQ(écran.cmbListe(SélecteurMasculin).Eléments(), (Champs{u"Éric"}));
    écran.txtMot(0).RecevoirFocus();
    EXPECT_EQ(écran.fgGenre.Rows(), 1) << "quitter le champ n'en fait pas un autre mot";
}

TEST_F(LexiqueOuvert, LaRechercheSuitLaFrappeEtLesDépendantsAttendentEntrée)
{
    banc.EcrireChamps("Synonymes.dat", {u"*", u"content", u"gai", u"*", u"triste", u"morne"});
    auto& écran = OuvrirLexique();
    écran.txtMot(3).RecevoirFocus();
    écran.txtMot(3).Saisir(u"tr");
    EXPECT_EQ(écran.cmbListe(3).Text, u"triste");
    EXPECT_EQ(écran.txtMot(3).Text, u"tr");
    EXPECT_EQ(écran.txtMot(Synonyme).Text, u"gai");
    EXPECT_FALSE(banc.état.ListeModifiée);
    écran.txtMot(3).Saisir(u"Tr");
    écran.txtMot(3).Saisir(u"");
    EXPECT_EQ(écran.cmbListe(3).Text, u"triste");
    écran.txtMot(3).Saisir(u"triste");
    écran.txtMot(3).Taper({u'\r', Touche::Entrée});
    EXPECT_EQ(écran.txtMot(Synonyme).Text, u"morne");
    EXPECT_EQ(écran.txtMot(3).SelLength, 6U);
    EXPECT_EQ(écran.fgSynonymes.Rows(), 2);
}

TEST_F(LexiqueOuvert, QuitterUnChampValideSonMotEtUnChampVidéEstIgnoré)
{
    auto& écran = OuvrirLexique();
    écran.txtMot(3).RecevoirFocus();
    écran.txtMot(3).Saisir(u"content");
    écran.txtMot(Synonyme).RecevoirFocus();
    EXPECT_EQ(Cellules(écran.fgSynonymes), (Rangées{{u"content", u""}}));
    écran.txtMot(Synonyme).Saisir(u"gai");
    écran.txtMot(3).RecevoirFocus();
    EXPECT_EQ(écran.txtMot(3).SelLength, 7U);
    écran.txtMot(3).Saisir(u"  ");
    écran.txtMot(5).RecevoirFocus();
    EXPECT_EQ(Cellules(écran.fgSynonymes), (Rangées{{u"content", u"gai"}}));
}

TEST_F(LexiqueOuvert, UnNouveauSousThèmePrendLaPlaceVideDuThème)
{
    auto& écran = OuvrirLexique();
    Entrer(écran, 0, u"mer");
    EXPECT_EQ(écran.txtMot(1).Text, u"-");
    Entrer(écran, 2, u"la vague");
    EXPECT_EQ(Cellules(écran.fgFamilles), (Rangées{{u"mer", u"", u"la vague"}}));
    Entrer(écran, 1, u"bateaux");
    EXPECT_EQ(Cellules(écran.fgFamilles), (Rangées{{u"mer", u"bateaux", u"la vague"}}));
    EXPECT_EQ(écran.cmbListe(1).Eléments(), (Champs{u"bateaux"})) << "le tiret s'en va";
    Entrer(écran, 1, u"poissons");
    Entrer(écran, 2, u"le thon");
    Entrer(écran, 2, u"la raie");
    EXPECT_EQ(Cellules(écran.fgFamilles),
              (Rangées{{u"mer", u"bateaux", u"la vague", u""}, {u"mer", u"poissons", u"le thon", u"la raie"}}));
    Entrer(écran, 1, u"bateaux");
    EXPECT_EQ(écran.fgFamilles.Rows(), 2);
    EXPECT_EQ(écran.cmbListe(2).Eléments(), (Champs{u"la vague"}));
    écran.cmdEnregistrer.Cliquer();
    EXPECT_EQ(ChampsDe("Familles.dat"),
              (Champs{u"*", u"mer", u"bateaux", u"la vague", u"*", u"mer", u"poissons", u"le thon", u"la raie"}));
}

TEST_F(LexiqueOuvert, SansParentUnMotEstRefuséAvecUnMot)
{
    auto& écran = OuvrirLexique();
    for (const auto& [i, message] : std::vector<std::pair<int, Texte>>{{1, u"Entrez d'abord un thème."},
                                                                       {2, u"Entrez d'abord un thème."},
                                                                       {4, u"Entrez d'abord un mot référent."},
                                                                       {6, u"Entrez d'abord un mot référent."},
                                                                       {8, u"Entrez d'abord le masculin."}}) {
        banc.AnnoncerBoîte(message);
        Entrer(écran, i, u"mot");
        EXPECT_EQ(écran.txtMot(i).Text, u"");
        EXPECT_EQ(écran.cmbListe(i).ListCount(), 0);
    }
    Entrer(écran, 0, u"mer");
    Entrer(écran, 1, u"bateaux");
    Entrer(écran, 1, u"-");
    EXPECT_EQ(écran.txtMot(1).Text, u"bateaux") << "le tiret n'est pas un sous-thème";
    EXPECT_EQ(Cellules(écran.fgFamilles), (Rangées{{u"mer", u"bateaux"}}));
}

TEST_F(LexiqueOuvert, CeQuUneFicheNePeutPasGarderEstRefuséOùCEstTapé)
{
    auto& écran = OuvrirLexique();
    banc.AnnoncerBoîte(u"L'astérisque seul n'est pas possible ici : dans le fichier, il sépare les mots.");
    EXPECT_FALSE(écran.txtMot(0).Saisir(u" * "));
    banc.AnnoncerBoîte(u"L'astérisque seul n'est pas possible ici : dans le fichier, il sépare les mots.");
    EXPECT_FALSE(écran.txtDéfinition.Saisir(u"*"));
    EXPECT_TRUE(écran.txtDéfinition.Saisir(u"* un"));
    banc.AnnoncerBoîte(u"Le guillemet droit (\") n'est pas possible ici.");
    EXPECT_FALSE(écran.txtModif.Saisir(u"\""));
    banc.AnnoncerBoîte(u"Ce caractère n'est pas possible ici : le fichier ne peut pas le garder.");
    EXPECT_FALSE(écran.txtExemple.Saisir(u"Ω"));
    EXPECT_FALSE(écran.txtDéfinition.Saisir(Texte(201, u'a')));
    EXPECT_TRUE(écran.txtDéfinition.Saisir(Texte(200, u'a')));
}

TEST_F(LexiqueOuvert, LeFémininPrendLaPlaceDuPrécédent)
{
    auto& écran = OuvrirLexique();
    Entrer(écran, SélecteurMasculin, u"chat");
    Entrer(écran, Femme, u"chate");
    Entrer(écran, Femme, u"chatte");
    EXPECT_EQ(Cellules(écran.fgGenre), (Rangées{{u"chat", u"chatte"}}));
    EXPECT_EQ(écran.cmbListe(Femme).Eléments(), (Champs{u"chatte"}));
}

// ---- Dictionaries ------------------------------------------------------------------------------------------------

TEST_F(LexiqueOuvert, UnMotDuTexteVaAussiDansLeGénéralEtPasLInverse)
{
    auto& écran = OuvrirLexique();
    Entrer(écran, 9, u"phare");
    EXPECT_EQ(écran.txtMot(10).Text, u"phare");
    Entrer(écran, 10, u"port");
    EXPECT_EQ(écran.txtMot(9).Text, u"");
    EXPECT_EQ(Cellules(écran.fgDic), (Rangées{{u"phare", u"", u""}}));
    EXPECT_EQ(Cellules(écran.fgDicPrinc), (Rangées{{u"phare", u"", u""}, {u"port", u"", u""}}));
    Entrer(écran, 10, u"phare");
    EXPECT_EQ(écran.txtMot(9).Text, u"phare");
}

TEST_F(LexiqueOuvert, UnMotDuGénéralTapéDansLeTexteYApporteSaDéfinition)
{
    banc.EcrireChamps("DicPrinc.dat", {u"*", u"phare", u"Une tour.", u"Il luit."});
    auto& écran = OuvrirLexique();
    Entrer(écran, 9, u"phare");
    EXPECT_EQ(Cellules(écran.fgDic), (Rangées{{u"phare", u"Une tour.", u"Il luit."}}));
    EXPECT_EQ(écran.fgDicPrinc.Rows(), 1);
}

TEST_F(LexiqueOuvert, LaDéfinitionEtLExempleVontAuxDeuxDictionnaires)
{
    auto& écran = OuvrirLexique();
    Entrer(écran, 9, u"phare");
    écran.txtDéfinition.RecevoirFocus();
    écran.txtDéfinition.Saisir(u" Une tour.\r\nHaute. ");
    écran.txtExemple.RecevoirFocus();
    écran.txtExemple.Saisir(u"Il luit.");
    écran.cmdValiderEx.Cliquer();
    const Rangées attendues{{u"phare", u"Une tour.\r\nHaute.", u"Il luit."}};
    EXPECT_EQ(Cellules(écran.fgDic), attendues);
    EXPECT_EQ(Cellules(écran.fgDicPrinc), attendues);
    Entrer(écran, 9, u"port");
    EXPECT_EQ(écran.txtDéfinition.Text, u"");
    EXPECT_EQ(écran.txtExemple.Text, u"");
}

TEST_F(LexiqueOuvert, UneDéfinitionSansMotEstDite)
{
    auto& écran = OuvrirLexique();
    écran.txtDéfinition.RecevoirFocus();
    écran.txtDéfinition.Saisir(u"Une tour.");
    banc.AnnoncerBoîte(u"Entrez d'abord un mot dans un dictionnaire.");
    écran.txtMot(9).RecevoirFocus();
    EXPECT_EQ(écran.txtDéfinition.Text, u"Une tour.");
}

TEST_F(LexiqueOuvert, AttacherDeuxFoisNeFaitQueRafraîchirLaCopieDuTexte)
{
    banc.EcrireChamps("DicPrinc.dat", {u"*", u"phare", u"Une tour.", u"Il luit.", u"*", u"port", u"Un abri.", u""});
    auto& écran = OuvrirLexique();
    écran.cmdAttacher.Cliquer();
    EXPECT_EQ(écran.txtMot(9).Text, u"phare");
    écran.fgDic.TextMatrix(0, ColonneDéfinition, u"Autre.");
    écran.cmdAttacher.Cliquer();
    EXPECT_EQ(Cellules(écran.fgDic), (Rangées{{u"phare", u"Une tour.", u"Il luit."}}));
    EXPECT_EQ(écran.cmbListe(9).Eléments(), (Champs{u"phare"}));
    écran.cmbListe(10).Choisir(1);
    écran.cmdAttacher.Cliquer();
    EXPECT_EQ(écran.cmbListe(9).Eléments(), (Champs{u"phare", u"port"}));
}

TEST_F(LexiqueOuvert, AttacherSansDictionnaireNeFaitRien)
{
    auto& écran = OuvrirLexique();
    écran.cmdAttacher.Cliquer();
    EXPECT_EQ(écran.fgDic.Rows(), 0);
}

// ---- Renaming ----------------------------------------------------------------------------------------------------

TEST_F(LexiqueOuvert, ModifierGardeLesDépendants)
{
    banc.EcrireChamps("Familles.dat", {u"*", u"mer", u"bateaux", u"voile", u"*", u"mer", u"poissons", u"thon"});
    auto& écran = OuvrirLexique();
    RenommerEn(écran, 0, u"Océan");
    EXPECT_EQ(écran.fgFamilles.TextMatrix(0, 0), u"Océan");
    EXPECT_EQ(écran.fgFamilles.TextMatrix(1, 0), u"Océan");
    EXPECT_EQ(écran.cmbListe(0).Eléments(), (Champs{u"Océan"}));
    EXPECT_EQ(écran.cmbListe(1).Eléments(), (Champs{u"bateaux", u"poissons"}));
    RenommerEn(écran, 1, u"navires");
    RenommerEn(écran, 2, u"la voile");
    EXPECT_EQ(Cellules(écran.fgFamilles),
              (Rangées{{u"Océan", u"navires", u"la voile"}, {u"Océan", u"poissons", u"thon"}}));
    EXPECT_EQ(écran.txtMot(2).Text, u"la voile");
    EXPECT_EQ(écran.Focus(), &écran.txtMot(2));
    EXPECT_FALSE(écran.txtModif.Visible);
}

TEST_F(LexiqueOuvert, ModifierUnRéférentUnDépendantEtUnFéminin)
{
    banc.EcrireChamps("Synonymes.dat", {u"*", u"content", u"gai", u"ravi"});
    banc.EcrireChamps("Genre.dat", {u"*", u"chat", u"chate"});
    auto& écran = OuvrirLexique();
    RenommerEn(écran, SélecteurSynonyme, u"heureux");
    écran.cmbListe(Synonyme).Choisir(1);
    RenommerEn(écran, Synonyme, u"enchanté");
    EXPECT_EQ(Cellules(écran.fgSynonymes), (Rangées{{u"heureux", u"gai", u"enchanté"}}));
    EXPECT_EQ(écran.cmbListe(Synonyme).Eléments(), (Champs{u"enchanté", u"gai"}));
    RenommerEn(écran, Femme, u"chatte");
    EXPECT_EQ(Cellules(écran.fgGenre), (Rangées{{u"chat", u"chatte"}}));
}

TEST_F(LexiqueOuvert, ModifierDansUnDictionnaireChangeLesDeux)
{
    auto& écran = OuvrirLexique();
    Entrer(écran, 10, u"port");
    Entrer(écran, 9, u"fare");
    RenommerEn(écran, 9, u"phare");
    EXPECT_EQ(écran.cmbListe(10).Eléments(), (Champs{u"phare", u"port"}));
    EXPECT_EQ(écran.cmbListe(9).Eléments(), (Champs{u"phare"}));
    RenommerEn(écran, 10, u"tour");
    EXPECT_EQ(écran.cmbListe(9).Eléments(), (Champs{u"tour"}));
    écran.cmbListe(10).Choisir(écran.cmbListe(10).Chercher(u"port"));
    RenommerEn(écran, 10, u"quai");
    EXPECT_EQ(écran.cmbListe(9).Eléments(), (Champs{u"tour"}));
    EXPECT_EQ(écran.fgDic.Rows(), 1);
}

TEST_F(LexiqueOuvert, DeuxMotsDevenusLeMêmeNEnMontrentQuUn)
{
    banc.EcrireChamps("Synonymes.dat", {u"*", u"beau", u"joli", u"*", u"content", u"gai"});
    auto& écran = OuvrirLexique();
    RenommerEn(écran, SélecteurSynonyme, u"content");
    EXPECT_EQ(écran.fgSynonymes.Rows(), 2);
    EXPECT_EQ(écran.cmbListe(SélecteurSynonyme).Eléments(), (Champs{u"content"}));
}

TEST_F(LexiqueOuvert, QuitterUneModificationAutrementLAbandonne)
{
    auto& écran = OuvrirLexique();
    Entrer(écran, 0, u"mer");
    écran.cmdModifier(0).Cliquer();
    EXPECT_EQ(écran.txtModif.PoséSur(), &écran.txtMot(0));
    EXPECT_EQ(écran.txtModif.Text, u"mer");
    EXPECT_EQ(écran.txtModif.SelLength, 3U);
    EXPECT_EQ(écran.Focus(), &écran.txtModif);
    EXPECT_EQ(banc.état.IndexListe, 0);
    écran.txtModif.Saisir(u"océan");
    écran.txtMot(3).RecevoirFocus();
    EXPECT_FALSE(écran.txtModif.Visible);
    EXPECT_EQ(écran.txtMot(0).Text, u"mer");
    RenommerEn(écran, 0, u"   ");
    EXPECT_EQ(écran.fgFamilles.TextMatrix(0, 0), u"mer") << "un nom vide n'en est pas un";
}

TEST_F(LexiqueOuvert, SansMotRienNeSeModifie)
{
    auto& écran = OuvrirLexique();
    for (int i = 0; i < NombreDeSélecteurs; ++i) {
        écran.cmdModifier(i).Cliquer();
        EXPECT_FALSE(écran.txtModif.Visible);
        écran.cmdSupprimer(i).Cliquer(); // nothing is asked about nothing
    }
    Entrer(écran, 0, u"mer");
    écran.cmdModifier(1).Cliquer();
    EXPECT_FALSE(écran.txtModif.Visible) << "le tiret n'est pas un mot";
}

// ---- Deleting ----------------------------------------------------------------------------------------------------

TEST_F(LexiqueOuvert, SupprimerUnThèmeEmporteToutCeQuiEnDépend)
{
    banc.EcrireChamps("Familles.dat", {u"*", u"mer", u"bateaux", u"voile", u"*", u"eau", u"", u"pluie", u"*", u"mer",
                                       u"poissons", u"thon"});
    auto& écran = OuvrirLexique();
    écran.cmbListe(0).Choisir(1);
    Supprimer(écran, 0, Réponse::Non);
    EXPECT_EQ(écran.fgFamilles.Rows(), 3);
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Titre, u"Avertissement");
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Danger, Perte::ParOui);
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Objet, u"Thème : mer");
    Supprimer(écran, 0);
    EXPECT_EQ(écran.fgFamilles.Rows(), 1);
    EXPECT_EQ(écran.txtMot(0).Text, u"eau");
    EXPECT_EQ(écran.txtMot(1).Text, u"-");
    EXPECT_EQ(écran.txtMot(2).Text, u"pluie");
    Supprimer(écran, 0);
    EXPECT_EQ(écran.fgFamilles.Rows(), 0);
    for (int i : {0, 1, 2}) {
        EXPECT_EQ(écran.txtMot(i).Text, u"");
        EXPECT_EQ(écran.cmbListe(i).ListCount(), 0);
    }
}

TEST_F(LexiqueOuvert, SupprimerUnSousThèmePuisUnMot)
{
    banc.EcrireChamps("Familles.dat",
                      {u"*", u"mer", u"bateaux", u"voile", u"*", u"mer", u"poissons", u"raie", u"thon", u"sole"});
    auto& écran = OuvrirLexique();
    Supprimer(écran, 1);
    EXPECT_EQ(écran.txtMot(1).Text, u"poissons");
    EXPECT_EQ(écran.txtMot(2).Text, u"raie");
    écran.cmdSupprimer(2).Cliquer();
    EXPECT_EQ(Cellules(écran.fgFamilles), (Rangées{{u"mer", u"poissons", u"thon", u"sole", u""}}));
    EXPECT_EQ(écran.txtMot(2).Text, u"sole");
    EXPECT_EQ(écran.txtMot(1).Text, u"poissons");
}

TEST_F(LexiqueOuvert, SupprimerUnRéférentUnSynonymeUnFéminin)
{
    banc.EcrireChamps("Synonymes.dat", {u"*", u"content", u"gai", u"ravi", u"*", u"triste", u"morne"});
    banc.EcrireChamps("Genre.dat", {u"*", u"chat", u"chatte"});
    auto& écran = OuvrirLexique();
    écran.cmdSupprimer(Synonyme).Cliquer();
    EXPECT_EQ(écran.fgSynonymes.TextMatrix(0, 1), u"ravi");
    EXPECT_EQ(écran.txtMot(Synonyme).Text, u"ravi");
    Supprimer(écran, SélecteurSynonyme);
    EXPECT_EQ(Cellules(écran.fgSynonymes), (Rangées{{u"triste", u"morne", u""}}));
    EXPECT_EQ(écran.txtMot(Synonyme).Text, u"morne");
    écran.cmdSupprimer(Femme).Cliquer();
    EXPECT_EQ(Cellules(écran.fgGenre), (Rangées{{u"chat", u""}}));
    EXPECT_EQ(écran.txtMot(Femme).Text, u"");
    Supprimer(écran, SélecteurMasculin);
    EXPECT_EQ(écran.fgGenre.Rows(), 0);
}

TEST_F(LexiqueOuvert, SupprimerDuTexteGardeLeGénéralEtSupprimerDuGénéralVideLesDeux)
{
    auto& écran = OuvrirLexique();
    for (const auto* mot : {u"phare", u"port", u"quai"})
        Entrer(écran, 9, mot);
    écran.cmbListe(9).Choisir(0);
    écran.cmdSupprimer(9).Cliquer();
    EXPECT_EQ(écran.cmbListe(9).Eléments(), (Champs{u"port", u"quai"}));
    EXPECT_EQ(écran.cmbListe(10).Eléments(), (Champs{u"phare", u"port", u"quai"}));
    EXPECT_EQ(écran.txtMot(9).Text, u"port");
    EXPECT_EQ(écran.txtMot(10).Text, u"port");
    écran.txtDéfinition.Saisir(u"Un abri.");
    écran.cmdSupprimer(10).Cliquer();
    EXPECT_EQ(écran.cmbListe(9).Eléments(), (Champs{u"quai"}));
    EXPECT_EQ(écran.cmbListe(10).Eléments(), (Champs{u"phare", u"quai"}));
    EXPECT_EQ(écran.txtMot(10).Text, u"phare");
    EXPECT_EQ(écran.txtMot(9).Text, u"");
    EXPECT_EQ(écran.txtDéfinition.Text, u"");
    écran.cmdSupprimer(10).Cliquer();
    écran.cmdSupprimer(10).Cliquer();
    EXPECT_EQ(écran.fgDic.Rows(), 0);
    EXPECT_EQ(écran.fgDicPrinc.Rows(), 0);
    EXPECT_EQ(écran.txtMot(10).Text, u"");
    EXPECT_EQ(écran.txtDéfinition.Text, u"");
}

// ---- Saving ------------------------------------------------------------------------------------------------------

TEST_F(LexiqueOuvert, CentMotsSEnregistrentÀLOctetPrès)
{
    auto& écran = OuvrirLexique();
    std::string attendu;
    for (int i = 0; i < 100; ++i) {
        Entrer(écran, 9, u"mot" + EnTexte(i));
        écran.txtDéfinition.RecevoirFocus();
        écran.txtDéfinition.Saisir(u"Défini " + EnTexte(i) + u".");
        const auto numéro = std::to_string(i);
        attendu += "\"*\"\r\n\"mot" + numéro +
                   "\"\r\n\"D\xE9"
                   "fini " +
                   numéro + ".\"\r\n\"\"\r\n";
    }
    écran.cmdQuitter.Cliquer(); // the last definition is still being typed
    EXPECT_EQ(banc.Lire("Le phare.dic"), attendu);
    EXPECT_EQ(banc.Lire("DicPrinc.dat"), attendu);
}

TEST_F(LexiqueOuvert, CeQuiEstEnCoursDeFrappeEstEnregistréParLaCroix)
{
    auto& écran = OuvrirLexique();
    écran.txtMot(7).RecevoirFocus();
    écran.txtMot(7).Saisir(u"roi");
    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(ChampsDe("Genre.dat"), (Champs{u"*", u"roi"}));
}

TEST_F(LexiqueOuvert, SansDossierDeTexteCeluiDuProgrammeSert)
{
    banc.état.CheminTextes.clear();
    OuvrirLexique().cmdQuitter.Cliquer();
    EXPECT_TRUE(banc.Existe("Familles.dat"));
}

TEST_F(LexiqueOuvert, UnEnregistrementManquéNommeSesFichiersEtLeSuivantRéussit)
{
    auto& écran = OuvrirLexique();
    Entrer(écran, 0, u"mer");
    Entrer(écran, 9, u"phare");
    bool panne = true;
    banc.plateforme.échecEcriture = [&](const Chemin& fichier) {
        const bool visé = fichier.filename() == "Familles.dat" || fichier.filename() == "Le phare.dic";
        return panne && visé ? std::optional{EchecFichier::Ouverture} : std::nullopt;
    };
    const Texte message =
        u"Impossible d'enregistrer les fichiers\n" + CheminDe("Familles.dat") + u"\n" + CheminDe("Le phare.dic") +
        u"\n\nVérifiez que son dossier existe et que vous avez le droit d'y écrire.\nRien n'est perdu "
        u"tant que cette fenêtre reste ouverte : recommencez quand ce sera réparé.";
    banc.AnnoncerBoîte(message);
    écran.cmdEnregistrer.Cliquer();
    EXPECT_EQ(ChampsDe("DicPrinc.dat"), (Champs{u"*", u"phare", u"", u""})) << "les autres sont enregistrés";
    banc.AnnoncerBoîte(message);
    banc.AnnoncerBoîte(u"Tout n'a pas pu être enregistré.\nSouhaitez-vous quitter quand même ?", Réponse::Non);
    écran.cmdQuitter.Cliquer();
    ASSERT_TRUE(écran.EstChargé());
    panne = false;
    écran.cmdEnregistrer.Cliquer();
    EXPECT_EQ(ChampsDe("Familles.dat"), (Champs{u"*", u"mer", u""}));
    EXPECT_EQ(ChampsDe("Le phare.dic"), (Champs{u"*", u"phare", u"", u""}));
}

TEST_F(LexiqueOuvert, UnFichierAbîméEstMisDeCôtéUneFoisAvantDÊtreRemplacé)
{
    banc.Ecrire("Familles.dat", "n'importe quoi");
    banc.EcrireChamps("Synonymes.dat", {u"*", u"content", u"", u"ravi"});
    auto& écran = OuvrirLexique();
    EXPECT_EQ(écran.fgFamilles.Rows(), 0);
    banc.AnnoncerBoîte(
        u"Ce qui n'avait pas pu être lu en entier est mis de côté. Vous le trouverez dans les fichiers\n" +
        CheminDe("Familles.dat.abîmé1") + u"\n" + CheminDe("Synonymes.dat.abîmé1") + u"\n");
    écran.cmdEnregistrer.Cliquer();
    EXPECT_EQ(banc.Lire("Familles.dat.abîmé1"), "n'importe quoi");
    EXPECT_EQ(ChampsDe("Synonymes.dat"), (Champs{u"*", u"content"}));
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(banc.Existe("Familles.dat.abîmé2"));
}

TEST_F(LexiqueOuvert, UnFichierAbîméQuiNePeutÊtreMisDeCôtéNEstPasRemplacé)
{
    banc.Ecrire("Genre.dat", "n'importe quoi");
    auto& écran = OuvrirLexique();
    banc.plateforme.échecEcriture = [](const Chemin& fichier) {
        return fichier.filename() == "Genre.dat.abîmé1" ? std::optional{EchecFichier::Ecriture} : std::nullopt;
    };
    banc.AnnoncerBoîte(u"Impossible d'enregistrer le fichier\n" + CheminDe("Genre.dat") + u"\n…");
    écran.cmdEnregistrer.Cliquer();
    EXPECT_EQ(banc.Lire("Genre.dat"), "n'importe quoi");
}

TEST_F(LexiqueOuvert, UnFichierVenuAprèsLOuvertureEstMisDeCôté)
{
    auto& écran = OuvrirLexique();
    banc.EcrireChamps("Genre.dat", {u"*", u"roi", u"reine"});
    banc.AnnoncerBoîte(u"Ce qui n'avait pas pu être lu en entier est mis de côté.…");
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(ChampsDe("Genre.dat.abîmé1"), (Champs{u"*", u"roi", u"reine"}));
}

TEST_F(LexiqueOuvert, CequiEstLuEntierSeRéécritTelQuel)
{
    const Champs familles{u"*", u"mer", u"", u"la vague", u"*", u"ciel", u"nuit", u"la lune"};
    banc.EcrireChamps("Familles.dat", familles);
    banc.EcrireChamps("Contraires.dat", {u"*", u"ancien", u"récent", u"neuf", u"*", u"seul"});
    banc.EcrireChamps("Le phare.dic", {u"*", u"phare", u"Une\r\ntour.", u""});
    auto& écran = OuvrirLexique();
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(ChampsDe("Familles.dat"), familles);
    EXPECT_EQ(ChampsDe("Contraires.dat"), (Champs{u"*", u"ancien", u"récent", u"neuf", u"*", u"seul"}));
    EXPECT_EQ(ChampsDe("Le phare.dic"), (Champs{u"*", u"phare", u"Une\r\ntour.", u""}));
    EXPECT_EQ(ChampsDe("DicPrinc.dat"), (Champs{u"*", u"phare", u"Une\r\ntour.", u""}));
}

} // namespace tirelune
