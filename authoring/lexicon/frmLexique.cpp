#include "authoring/lexicon/frmLexique.h"

#include "core/Crayon.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tirelune {

namespace {

// What the list of sub-themes holds while the theme has none.
constexpr VueTexte AucunSousThème = u"-";
constexpr int LargeurFlèche = 360; // of a list, left free by the field that lies on it; twips

Dessin Crayonner()
{
    using namespace Crayon;
    return Dessiner({Contour({{9, 39}, {12, 28}, {32, 8}, {40, 16}, {20, 36}}), Trait({{27, 13}, {35, 21}})},
                    Couleur::Rvb(0x6B, 0x52, 0x00));
}

Dessin Corbeille()
{
    using namespace Crayon;
    return Dessiner({Trait({{8, 13}, {40, 13}}), Trait({{18, 13}, {18, 7}, {30, 7}, {30, 13}}),
                     Contour({{12, 13}, {36, 13}, {33, 42}, {15, 42}}), Trait({{21, 21}, {21, 34}}),
                     Trait({{27, 21}, {27, 34}})},
                    Couleur::Rvb(0xB7, 0x1C, 0x1C));
}

Dessin Coche()
{
    using namespace Crayon;
    return Dessiner({Trait({{9, 26}, {19, 37}, {39, 11}})}, Couleur::Rvb(0x1F, 0x5A, 0x24));
}

const Sélecteur& Différences(int i)
{
    return Sélecteurs()[static_cast<std::size_t>(i)];
}

// What hangs under such a word goes with it.
bool ADesDépendants(Rôle fonction)
{
    return fonction == Rôle::Thème || fonction == Rôle::SousThème || fonction == Rôle::Référent;
}

bool EstUnDictionnaire(int i)
{
    return i == SélecteurDicTexte || i == SélecteurDicPrinc;
}

} // namespace

frmLexique::frmLexique(Application& application) : Ecran(application, "frmLexique", u"Lexique")
{
    for (auto& bouton : cmdModifier)
        bouton.Picture = Crayonner();
    for (auto& bouton : cmdSupprimer)
        bouton.Picture = Corbeille();
    cmdValiderDéf.Picture = Coche();
    cmdValiderEx.Picture = Coche();
    mnuMotSuivant.Raccourci = "Ctrl+Return";
    RelierSélecteurs();
    txtModif.Enter = [this] { txtModif_Enter(); };
    txtModif.LostFocus = [this] { txtModif_LostFocus(); };
    txtDéfinition.Change = [this] { définitionSaisie_ = true; };
    txtDéfinition.LostFocus = [this] { cmdValiderDéf_Click(); };
    txtExemple.Change = [this] { exempleSaisi_ = true; };
    txtExemple.LostFocus = [this] { cmdValiderEx_Click(); };
    cmdValiderDéf.Click = [this] { cmdValiderDéf_Click(); };
    cmdValiderEx.Click = [this] { cmdValiderEx_Click(); };
    cmdAttacher.Click = [this] { cmdAttacher_Click(); };
    cmdEnregistrer.Click = [this] { cmdEnregistrer_Click(); };
    cmdQuitter.Click = [this] { cmdQuitter_Click(); };
    mnuMotSuivant.Click = [this] { mnuMotSuivant_Click(); };
}

void frmLexique::RelierSélecteurs()
{
    txtMot.Relier(&TextBox::Change, [this](int i) { txtMot_Change(i); });
    txtMot.Relier(&TextBox::GotFocus, [this](int i) { txtMot_GotFocus(i); });
    txtMot.Relier(&TextBox::Click, [this](int i) { txtMot_GotFocus(i); });
    txtMot.Relier(&TextBox::Enter, [this](int i) { txtMot_Enter(i); });
    txtMot.Relier(&TextBox::LostFocus, [this](int i) { txtMot_LostFocus(i); });
    cmbListe.Relier(&ComboBox::Click, [this](int i) { AfficherDépendants(i); });
    cmdModifier.Click([this](int i) { cmdModifier_Click(i); });
    cmdSupprimer.Click([this](int i) { cmdSupprimer_Click(i); });
}

// The field lies on its list, whose arrow stays free.
Arrangement frmLexique::Place(int i)
{
    return Colonne{
        lblLégende(i),
        Ligne{
            Extensible(Pile{cmbListe(i), Ligne{Extensible(txtMot(i)), AuMoins(LargeurFlèche, 0, Ligne{})}}),
            cmdModifier(i),
            cmdSupprimer(i),
        },
    };
}

Arrangement frmLexique::Disposer()
{
    static constexpr int Haute = 4; // shares of the height: three words above, two below
    static constexpr int Basse = 3;
    const auto paire = [this](Frame& cadre, int référent, int part) {
        return Extensible(Cadre{cadre, Colonne{Place(référent), Place(référent + 1), Ressort{}}}, part);
    };
    return Colonne{
        Extensible(Pile{
            Ligne{
                Extensible(Colonne{
                    Extensible(Cadre{frameFamilles, Colonne{Place(SélecteurThème), Place(SélecteurSousThème),
                                                            Place(SélecteurMotDeFamille), lblConseil, Ressort{}}},
                               Haute),
                    paire(frameGenre, SélecteurMasculin, Basse),
                }),
                Extensible(Colonne{paire(frameSynonymes, SélecteurSynonyme, Haute),
                                   paire(frameContraires, SélecteurContraire, Basse)}),
                Extensible(Cadre{
                    frameDictionnaire,
                    Colonne{
                        Place(SélecteurDicTexte),
                        Place(SélecteurDicPrinc),
                        Ligne{cmdAttacher, Ressort{}},
                        Ligne{lblDéfinition, Ressort{}, cmdValiderDéf},
                        Extensible(txtDéfinition),
                        Ligne{lblExemple, Ressort{}, cmdValiderEx},
                        Extensible(txtExemple),
                    },
                }),
            },
            Libre{txtModif},
        }),
        Ligne{Colonne{Label1, Label2}, lblRaccourci, Ressort{}, cmdEnregistrer, cmdQuitter},
    };
}

// ---- Files -------------------------------------------------------------------------------------------------------

void frmLexique::Load()
{
    if (état.CheminTextes.empty())
        état.CheminTextes = état.CheminAppli;
    ChargerFamilles();
    ChargerSynonymes();
    ChargerContraires();
    ChargerGenre();
    ChargerDicPrinc();
    ChargerDicTexte();
}

// False: nothing was read, and there is nothing to show.
bool frmLexique::Charger(FichierTenu& tenu, VueTexte nom, Grid& grille, Cellules écrites)
{
    tenu.Fichier = FichierLexique(état.CheminTextes, nom);
    const auto lecture = ChargerLexique(tenu.Fichier, grille, écrites);
    tenu.Remplaçable = lecture == Chargement::Entier;
    return lecture != Chargement::Aucun;
}

void frmLexique::ChargerFamilles()
{
    if (!Charger(familles_, NomFamilles, fgFamilles, Cellules::SansLesVides))
        return;
    cmbListe(SélecteurThème).AddItems(Clés(fgFamilles));
    PremierAffichage(SélecteurThème);
}

void frmLexique::ChargerPaires(FichierTenu& tenu, VueTexte nom, int référent)
{
    const auto écrites = référent == SélecteurMasculin ? Cellules::DeuxAuPlus : Cellules::JusquAuVide;
    if (!Charger(tenu, nom, GrilleDe(référent), écrites))
        return;
    cmbListe(référent).AddItems(Clés(GrilleDe(référent)));
    PremierAffichage(référent);
}

void frmLexique::ChargerSynonymes()
{
    ChargerPaires(synonymes_, NomSynonymes, SélecteurSynonyme);
}

void frmLexique::ChargerContraires()
{
    ChargerPaires(contraires_, NomContraires, SélecteurContraire);
}

void frmLexique::ChargerGenre()
{
    ChargerPaires(genre_, NomGenre, SélecteurMasculin);
}

void frmLexique::ChargerDicPrinc()
{
    if (!Charger(dicPrinc_, NomDicPrinc, fgDicPrinc, Cellules::Toutes))
        return;
    auto& liste = cmbListe(SélecteurDicPrinc);
    liste.AddItems(Clés(fgDicPrinc));
    if (liste.ListCount() > 0)
        Jouer(SélecteurDicPrinc, liste.List(0));
}

void frmLexique::ChargerDicTexte()
{
    if (!Charger(dicTexte_, NomDicTexte(état.TitreFichierTexte), fgDic, Cellules::Toutes))
        return;
    std::vector<Texte> mots;
    mots.reserve(static_cast<std::size_t>(fgDic.Rows()));
    for (int rangée = 0; rangée < fgDic.Rows(); ++rangée)
        mots.push_back(fgDic.TextMatrix(rangée, ColonneMot));
    cmbListe(SélecteurDicTexte).AddItems(std::move(mots));
    cmbListe(SélecteurDicPrinc).AddItems(FusionnerDictionnaires(fgDic, fgDicPrinc));
    PremierAffichage(SélecteurDicTexte);
}

// False: not all of it, and the user has been told.
bool frmLexique::Enregistrer()
{
    Enregistrement enregistrement{application_};
    enregistrement.Ecrire(familles_, ChampsDuLexique(fgFamilles, Cellules::SansLesVides));
    enregistrement.Ecrire(synonymes_, ChampsDuLexique(fgSynonymes, Cellules::JusquAuVide));
    enregistrement.Ecrire(contraires_, ChampsDuLexique(fgContraires, Cellules::JusquAuVide));
    enregistrement.Ecrire(genre_, ChampsDuLexique(fgGenre, Cellules::DeuxAuPlus));
    enregistrement.Ecrire(dicTexte_, ChampsDuLexique(fgDic, Cellules::Toutes));
    enregistrement.Ecrire(dicPrinc_, ChampsDuLexique(fgDicPrinc, Cellules::Toutes));
    return enregistrement.Conclure();
}

void frmLexique::cmdEnregistrer_Click()
{
    ValiderCeQuiAttend();
    static_cast<void>(Enregistrer()); // what could not be saved has been told
}

void frmLexique::cmdQuitter_Click()
{
    ValiderCeQuiAttend();
    if (Enregistrer() || QuitterSansEnregistrer(application_))
        Décharger();
}

void frmLexique::QueryUnload()
{
    cmdQuitter_Click();
}

// ---- Word fields -------------------------------------------------------------------------------------------------

void frmLexique::txtMot_Change(int i)
{
    motSaisi_ = true;
    const auto début = Rogner(txtMot(i).Text);
    if (début.empty())
        return;
    if (const int place = PremierQuiCommencePar(cmbListe(i), début); place >= 0) {
        état.ListeModifiée = true;
        Jouer(i, Texte{cmbListe(i).List(place)});
    }
}

void frmLexique::txtMot_GotFocus(int i)
{
    txtMot(i).SelStart = 0;
    txtMot(i).SelLength = txtMot(i).Text->size();
}

// A word that its list shows was taken before: what hangs under it stays where it is.
void frmLexique::txtMot_LostFocus(int i)
{
    if (motSaisi_ || txtMot(i).Text != cmbListe(i).Text)
        ValiderMot(i);
}

void frmLexique::txtMot_Enter(int i)
{
    ValiderMot(i);
    txtMot_GotFocus(i);
}

void frmLexique::mnuMotSuivant_Click()
{
    txtMot(SélecteurDicTexte).SetFocus();
}

// What was typed and not yet taken: a click by the keyboard, or on the close box, leaves the keyboard where it is.
void frmLexique::ValiderCeQuiAttend()
{
    for (int i = 0; i < NombreDeSélecteurs; ++i) {
        if (motSaisi_ && Focus() == &txtMot(i))
            ValiderMot(i);
    }
    if (définitionSaisie_)
        cmdValiderDéf_Click();
    if (exempleSaisi_)
        cmdValiderEx_Click();
}

void frmLexique::ValiderMot(int i)
{
    auto mot = Rogner(txtMot(i).Text);
    if (mot.empty())
        return;
    const bool montré = !std::exchange(motSaisi_, false) && mot == cmbListe(i).Text();
    if (!montré) // a capital that a rename has given stays
        mot = Minuscules(mot);
    const bool connu = cmbListe(i).Chercher(mot) >= 0;
    if (!connu && !Accueillir(i, mot))
        return;
    txtMot(i).Text = mot;
    if (!connu || EstUnDictionnaire(i))
        AjouterEntrée(i);
    Jouer(i, mot);
}

// A new word goes to its list. False: it has no place, and the field shows again what the list does.
bool frmLexique::Accueillir(int i, const Texte& mot)
{
    const int parent = Différences(i).Parent;
    const bool orphelin = parent >= 0 && txtMot(parent).Text->empty();
    if (!orphelin && !(i == SélecteurSousThème && mot == AucunSousThème)) {
        cmbListe(i).AddItem(mot);
        return true;
    }
    txtMot(i).Text = cmbListe(i).Text;
    if (orphelin)
        Avertir(Texte{Différences(i).SansParent});
    return false;
}

void frmLexique::AjouterEntrée(int i)
{
    const auto mot = txtMot(i).Text();
    switch (Différences(i).Fonction) {
    case Rôle::Thème:
        AjouterRangée(fgFamilles, mot);
        break;
    case Rôle::SousThème:
        AjouterSousThème();
        break;
    case Rôle::MotDeFamille:
        AjouterMotDeFamille();
        break;
    case Rôle::Référent:
        AjouterRangée(GrilleDe(i), mot);
        break;
    case Rôle::Dépendant:
        AjouterDépendant(i);
        break;
    case Rôle::MotDuTexte:
        if (RangéeDe(fgDic, ColonneMot, mot) < 0)
            AjouterRangée(fgDic, mot);
        AjouterAuGénéral(mot);
        Jouer(SélecteurDicPrinc, mot);
        break;
    case Rôle::MotDuGénéral:
        AjouterAuGénéral(mot);
        if (cmbListe(SélecteurDicTexte).Chercher(mot) >= 0)
            Jouer(SélecteurDicTexte, mot);
        break;
    }
}

// An empty sub-theme of the theme takes the name; without one, there is a new row.
void frmLexique::AjouterSousThème()
{
    const auto thème = txtMot(SélecteurThème).Text();
    const auto sousThème = txtMot(SélecteurSousThème).Text();
    int libre = -1;
    for (int rangée = 0; rangée < fgFamilles.Rows(); ++rangée) {
        if (!EstDuThème(rangée))
            continue;
        const auto& autre = fgFamilles.TextMatrix(rangée, ColonneSousThème);
        if (autre == sousThème)
            return;
        if (autre.empty() && libre < 0)
            libre = rangée;
    }
    if (libre < 0) {
        AjouterRangée(fgFamilles, thème);
        libre = fgFamilles.Rows() - 1;
    }
    fgFamilles.TextMatrix(libre, ColonneSousThème, sousThème);
}

void frmLexique::AjouterMotDeFamille()
{
    for (int rangée = 0; rangée < fgFamilles.Rows(); ++rangée) {
        if (EstDeLaFamille(rangée)) {
            AjouterCellule(fgFamilles, rangée, PremierMotDeFamille, txtMot(SélecteurMotDeFamille).Text);
            return;
        }
    }
}

void frmLexique::AjouterDépendant(int i)
{
    auto& grille = GrilleDe(i);
    const auto mot = txtMot(i).Text();
    const int rangée = RangéeDe(grille, ColonneRéférent, txtMot(i - 1).Text);
    if (rangée < 0)
        return;
    if (!Différences(i).UnSeul) {
        AjouterCellule(grille, rangée, PremierDépendant, mot);
        return;
    }
    grille.TextMatrix(rangée, ColonneFéminin, mot);
    cmbListe(i).Clear(); // the one before has given its place away
    cmbListe(i).AddItem(mot);
}

void frmLexique::AjouterAuGénéral(const Texte& mot)
{
    if (RangéeDe(fgDicPrinc, ColonneMot, mot) < 0)
        AjouterRangée(fgDicPrinc, mot);
    AjouterElément(cmbListe(SélecteurDicPrinc), mot);
}

// ---- What hangs under a word -------------------------------------------------------------------------------------

// Shows a word in a list, as if it had been picked there.
void frmLexique::Jouer(int i, const Texte& mot)
{
    MontrerTexte(cmbListe(i), mot);
    AfficherDépendants(i);
}

void frmLexique::Garnir(int i, std::vector<Texte> mots)
{
    auto& liste = cmbListe(i);
    liste.Clear();
    liste.AddItems(std::move(mots));
    if (liste.ListCount() > 0)
        Jouer(i, Texte{liste.List(0)});
    else
        txtMot(i).Text = Texte{};
}

void frmLexique::PremierAffichage(int i)
{
    auto& liste = cmbListe(i);
    if (liste.ListCount() == 0)
        return;
    liste.Montrer(0);
    txtMot(i).Text = liste.Text;
    ValiderMot(i);
}

void frmLexique::AfficherDépendants(int i)
{
    auto& liste = cmbListe(i);
    if (i == SélecteurSousThème && liste.ListCount() >= 2)
        RetirerElément(liste, AucunSousThème);
    if (std::exchange(état.ListeModifiée, false))
        return;
    txtMot(i).Text = liste.Text;
    switch (Différences(i).Fonction) {
    case Rôle::Thème:
        AfficherSousThèmes();
        break;
    case Rôle::SousThème:
        AfficherMotsDeFamille();
        break;
    case Rôle::Référent:
        AfficherPaires(i);
        break;
    case Rôle::MotDuTexte:
        AfficherMotDuTexte();
        break;
    case Rôle::MotDuGénéral:
        AfficherMotDuGénéral();
        break;
    case Rôle::MotDeFamille:
    case Rôle::Dépendant:
        break;
    }
}

bool frmLexique::EstDuThème(int rangée) const
{
    return fgFamilles.TextMatrix(rangée, ColonneThème) == txtMot(SélecteurThème).Text();
}

// Of the theme, and of the sub-theme shown or of all.
bool frmLexique::EstDeLaFamille(int rangée) const
{
    const auto& sousThème = fgFamilles.TextMatrix(rangée, ColonneSousThème);
    return EstDuThème(rangée) && (sousThème.empty() || sousThème == txtMot(SélecteurSousThème).Text());
}

void frmLexique::AfficherSousThèmes()
{
    if (txtMot(SélecteurThème).Text->empty()) {
        Garnir(SélecteurSousThème, {});
        Garnir(SélecteurMotDeFamille, {});
        return;
    }
    std::vector<Texte> sousThèmes;
    for (int rangée = 0; rangée < fgFamilles.Rows(); ++rangée) {
        if (EstDuThème(rangée) && !fgFamilles.TextMatrix(rangée, ColonneSousThème).empty())
            sousThèmes.push_back(fgFamilles.TextMatrix(rangée, ColonneSousThème));
    }
    SansDoublons(sousThèmes);
    if (sousThèmes.empty())
        sousThèmes.emplace_back(AucunSousThème);
    Garnir(SélecteurSousThème, std::move(sousThèmes));
}

void frmLexique::AfficherMotsDeFamille()
{
    std::vector<Texte> mots;
    for (int rangée = 0; rangée < fgFamilles.Rows(); ++rangée) {
        if (EstDeLaFamille(rangée))
            Relever(fgFamilles, rangée, PremierMotDeFamille, mots);
    }
    SansDoublons(mots);
    Garnir(SélecteurMotDeFamille, std::move(mots));
}

void frmLexique::AfficherPaires(int référent)
{
    auto& grille = GrilleDe(référent);
    const auto& mot = txtMot(référent).Text();
    std::vector<Texte> mots;
    if (const int rangée = mot.empty() ? -1 : RangéeDe(grille, ColonneRéférent, mot); rangée >= 0)
        Relever(grille, rangée, PremierDépendant, mots);
    if (Différences(référent + 1).UnSeul && mots.size() > 1)
        mots.resize(1);
    SansDoublons(mots);
    Garnir(référent + 1, std::move(mots));
}

void frmLexique::AfficherMotDuTexte()
{
    const auto mot = txtMot(SélecteurDicTexte).Text();
    const int rangée = fgDic.Rows() == 0 ? -1 : RangéeDe(fgDicPrinc, ColonneMot, mot);
    if (rangée < 0)
        return;
    état.MotExistant = true;
    Jouer(SélecteurDicPrinc, mot);
    MontrerDéfinition(rangée);
}

void frmLexique::AfficherMotDuGénéral()
{
    if (std::exchange(état.MotExistant, false))
        return;
    const auto mot = txtMot(SélecteurDicPrinc).Text();
    const int rangée = RangéeDe(fgDicPrinc, ColonneMot, mot);
    if (rangée < 0)
        return;
    if (RangéeDe(fgDic, ColonneMot, mot) >= 0)
        Jouer(SélecteurDicTexte, mot);
    else
        txtMot(SélecteurDicTexte).Text = Texte{};
    MontrerDéfinition(rangée);
    cmdValiderDéf_Click();
    cmdValiderEx_Click();
}

// ---- Definition and example --------------------------------------------------------------------------------------

void frmLexique::MontrerDéfinition(int rangée)
{
    txtDéfinition.Text = fgDicPrinc.TextMatrix(rangée, ColonneDéfinition);
    txtExemple.Text = fgDicPrinc.TextMatrix(rangée, ColonneExemple);
    définitionSaisie_ = false;
    exempleSaisi_ = false;
}

void frmLexique::cmdValiderDéf_Click()
{
    PrendreDéfinition(txtDéfinition, ColonneDéfinition, définitionSaisie_);
}

void frmLexique::cmdValiderEx_Click()
{
    PrendreDéfinition(txtExemple, ColonneExemple, exempleSaisi_);
}

// Both dictionaries take it, each for the word that it shows.
void frmLexique::PrendreDéfinition(TextBox& boîte, int colonne, bool& saisie)
{
    const auto texte = Rogner(boîte.Text);
    bool prise = false;
    const auto prendre = [&](int i, Grid& grille) {
        const int rangée = cmbListe(i).Text->empty() ? -1 : RangéeDe(grille, ColonneMot, VueTexte{txtMot(i).Text});
        if (rangée < 0)
            return;
        grille.TextMatrix(rangée, colonne, texte);
        prise = true;
    };
    prendre(SélecteurDicPrinc, fgDicPrinc);
    prendre(SélecteurDicTexte, fgDic);
    if (std::exchange(saisie, false) && !prise && !texte.empty())
        Avertir(u"Entrez d'abord un mot dans un dictionnaire.");
}

void frmLexique::cmdAttacher_Click()
{
    ValiderCeQuiAttend();
    const auto mot = cmbListe(SélecteurDicPrinc).Text();
    const int source = RangéeDe(fgDicPrinc, ColonneMot, mot);
    if (source < 0 || mot.empty())
        return;
    int cible = RangéeDe(fgDic, ColonneMot, mot);
    if (cible < 0) {
        AjouterRangée(fgDic, mot);
        cible = fgDic.Rows() - 1;
        cmbListe(SélecteurDicTexte).AddItem(mot);
    }
    fgDic.Cols(std::max(fgDic.Cols(), fgDicPrinc.Cols()));
    for (int colonne = 0; colonne < fgDicPrinc.Cols(); ++colonne)
        fgDic.TextMatrix(cible, colonne, fgDicPrinc.TextMatrix(source, colonne));
    Jouer(SélecteurDicTexte, mot);
}

// ---- Renaming ----------------------------------------------------------------------------------------------------

void frmLexique::cmdModifier_Click(int i)
{
    ValiderCeQuiAttend();
    const auto mot = txtMot(i).Text();
    if (mot.empty() || (i == SélecteurSousThème && mot == AucunSousThème))
        return;
    état.IndexListe = static_cast<std::uint8_t>(i);
    txtModif.PoséSur = &txtMot(i);
    txtModif.Text = mot;
    txtModif.SelStart = 0;
    txtModif.SelLength = mot.size();
    txtModif.Visible = true;
    txtModif.SetFocus();
}

void frmLexique::txtModif_LostFocus()
{
    txtModif.Visible = false;
}

void frmLexique::txtModif_Enter()
{
    const int i = état.IndexListe;
    const auto nouveau = Rogner(txtModif.Text);
    const auto ancien = txtMot(i).Text();
    txtModif.Visible = false;
    const bool aucun = nouveau.empty() || (i == SélecteurSousThème && nouveau == AucunSousThème);
    if (!aucun && nouveau != ancien)
        Renommer(i, ancien, nouveau);
    txtMot(i).SetFocus();
}

void frmLexique::Renommer(int i, const Texte& ancien, const Texte& nouveau)
{
    switch (Différences(i).Fonction) {
    case Rôle::Thème:
        RenommerPartout(fgFamilles, ColonneThème, ancien, nouveau);
        break;
    case Rôle::SousThème:
        for (int rangée = 0; rangée < fgFamilles.Rows(); ++rangée) {
            if (EstDuThème(rangée) && fgFamilles.TextMatrix(rangée, ColonneSousThème) == ancien)
                fgFamilles.TextMatrix(rangée, ColonneSousThème, nouveau);
        }
        break;
    case Rôle::MotDeFamille:
        if (const auto [rangée, colonne] = CelluleDeFamille(ancien); rangée >= 0)
            fgFamilles.TextMatrix(rangée, colonne, nouveau);
        break;
    case Rôle::Référent:
        RenommerPartout(GrilleDe(i), ColonneRéférent, ancien, nouveau);
        break;
    case Rôle::Dépendant: {
        auto& grille = GrilleDe(i);
        const int rangée = RangéeDe(grille, ColonneRéférent, txtMot(i - 1).Text);
        if (const int colonne = rangée < 0 ? -1 : CelluleDe(grille, rangée, PremierDépendant, ancien); colonne >= 0)
            grille.TextMatrix(rangée, colonne, nouveau);
        break;
    }
    case Rôle::MotDuTexte:
    case Rôle::MotDuGénéral:
        for (const int dictionnaire : {SélecteurDicTexte, SélecteurDicPrinc}) {
            auto& grille = GrilleDe(dictionnaire);
            const int rangée = RangéeDe(grille, ColonneMot, ancien);
            if (rangée < 0)
                continue;
            grille.TextMatrix(rangée, ColonneMot, nouveau);
            if (RangéeDe(grille, ColonneMot, ancien) < 0)
                RetirerElément(cmbListe(dictionnaire), ancien);
            AjouterElément(cmbListe(dictionnaire), nouveau);
        }
        break;
    }
    if (!EstUnDictionnaire(i)) {
        RetirerElément(cmbListe(i), ancien);
        AjouterElément(cmbListe(i), nouveau);
    }
    Jouer(i, nouveau);
}

// ---- Deleting ----------------------------------------------------------------------------------------------------

void frmLexique::cmdSupprimer_Click(int i)
{
    ValiderCeQuiAttend();
    const auto mot = txtMot(i).Text();
    if (mot.empty() || (i == SélecteurSousThème && mot == AucunSousThème))
        return;
    if (ADesDépendants(Différences(i).Fonction) &&
        !application_.Demander(
            u"Attention : vous allez supprimer cette entrée et tous ses dépendants. Souhaitez-vous continuer ?",
            {.Danger = Perte::ParOui, .Objet = Texte{Différences(i).Entendu} + u" : " + mot}))
        return;
    Retirer(i, mot);
    auto& liste = cmbListe(i);
    RetirerElément(liste, mot);
    const auto suivant = liste.ListCount() > 0 ? liste.List(0) : Texte{};
    MontrerTexte(liste, suivant);
    txtMot(i).Text = suivant;
    if (const int parent = Différences(i).Parent; parent >= 0)
        AfficherDépendants(parent);
    AfficherDépendants(i);
}

void frmLexique::Retirer(int i, const Texte& mot)
{
    switch (Différences(i).Fonction) {
    case Rôle::Thème:
        RetirerRangées(fgFamilles, ColonneThème, mot);
        break;
    case Rôle::SousThème:
        fgFamilles.RemoveRows(
            [&](int rangée) { return EstDuThème(rangée) && fgFamilles.TextMatrix(rangée, ColonneSousThème) == mot; });
        break;
    case Rôle::MotDeFamille:
        if (const auto [rangée, colonne] = CelluleDeFamille(mot); rangée >= 0)
            RetirerCellule(fgFamilles, rangée, colonne);
        break;
    case Rôle::Référent:
        RetirerRangées(GrilleDe(i), ColonneRéférent, mot);
        break;
    case Rôle::Dépendant: {
        auto& grille = GrilleDe(i);
        const int rangée = RangéeDe(grille, ColonneRéférent, txtMot(i - 1).Text);
        if (const int colonne = rangée < 0 ? -1 : CelluleDe(grille, rangée, PremierDépendant, mot); colonne >= 0)
            RetirerCellule(grille, rangée, colonne);
        break;
    }
    case Rôle::MotDuTexte:
        RetirerRangées(fgDic, ColonneMot, mot);
        break;
    case Rôle::MotDuGénéral:
        RetirerDesDictionnaires(mot);
        break;
    }
}

void frmLexique::RetirerDesDictionnaires(const Texte& mot)
{
    auto& listeDuTexte = cmbListe(SélecteurDicTexte);
    RetirerRangées(fgDic, ColonneMot, mot);
    RetirerElément(listeDuTexte, mot);
    if (listeDuTexte.Text == mot) {
        MontrerTexte(listeDuTexte, {});
        txtMot(SélecteurDicTexte).Text = Texte{};
    }
    RetirerRangées(fgDicPrinc, ColonneMot, mot);
    txtDéfinition.Text = Texte{};
    txtExemple.Text = Texte{};
}

// ---- Grids -------------------------------------------------------------------------------------------------------

Grid& frmLexique::GrilleDe(int i)
{
    const std::array<Grid*, NombreDeSélecteurs> grilles{&fgFamilles,  &fgFamilles,   &fgFamilles,   &fgSynonymes,
                                                        &fgSynonymes, &fgContraires, &fgContraires, &fgGenre,
                                                        &fgGenre,     &fgDic,        &fgDicPrinc};
    return *grilles.at(static_cast<std::size_t>(i));
}

// Where the word stands under the theme and the sub-theme shown; -1: nowhere.
std::pair<int, int> frmLexique::CelluleDeFamille(VueTexte mot) const
{
    for (int rangée = 0; rangée < fgFamilles.Rows(); ++rangée) {
        if (!EstDeLaFamille(rangée))
            continue;
        if (const int colonne = CelluleDe(fgFamilles, rangée, PremierMotDeFamille, mot); colonne >= 0)
            return {rangée, colonne};
    }
    return {-1, -1};
}

} // namespace tirelune
