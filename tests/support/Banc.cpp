#include "tests/support/Banc.h"

#include "TableEcrans.h"
#include "core/FichierChamps.h"
#include "core/Fichiers.h"
#include "followup/frmExercices.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <limits>

namespace tirelune {

void PrintTo(const Touche& touche, std::ostream* flux)
{
    *flux << "touche " << touche.Code << " '" << EnUtf8(Texte(1, touche.Caractère)) << '\'';
}

void PrintTo(Couleur couleur, std::ostream* flux)
{
    *flux << "0x" << std::hex << couleur.Valeur << std::dec;
}

// ---- Dice, boxes, dialogs ----------------------------------------------------------------------------------------

namespace {

template <class T>
T Prendre(std::deque<T>& annoncés, const char* quoi, T sinon = {})
{
    if (annoncés.empty()) {
        ADD_FAILURE() << quoi << " qui n'a pas été annoncé";
        return sinon;
    }
    T premier = std::move(annoncés.front());
    annoncés.pop_front();
    return premier;
}

bool Correspond(VueTexte montré, VueTexte attendu)
{
    return attendu.ends_with(u'…') ? montré.starts_with(attendu.substr(0, attendu.size() - 1)) : montré == attendu;
}

} // namespace

void PlateformeEssai::AmorcerHasard()
{
    EXPECT_TRUE(amorcesLibres || !amorcé_) << "deux amorces pour un tirage";
    amorcé_ = true;
    ++amorces;
}

double PlateformeEssai::Hasard()
{
    EXPECT_TRUE(amorcesLibres || amorcé_) << "tirage sans amorce";
    amorcé_ = false;
    ++tirages;
    if (hasards.empty() && toujours)
        return toujours();
    return Prendre(hasards, "tirage");
}

std::optional<EchecFichier> PlateformeEssai::Réécrire(const Chemin& fichier, std::string_view contenu)
{
    if (échecEcriture) {
        if (const auto échec = échecEcriture(fichier))
            return échec;
    }
    return RéécrireFichier(fichier, contenu);
}

namespace {

Réponse Refus(const Boîte& boîte)
{
    return boîte.Choix == Boutons::OuiNon      ? Réponse::Non
           : boîte.Choix == Boutons::OkAnnuler ? Réponse::Annuler
                                               : Réponse::Ok;
}

} // namespace

std::optional<std::chrono::seconds> PlateformeEssai::AgeFichier(const Chemin& fichier)
{
    std::error_code erreur;
    return std::filesystem::exists(fichier, erreur) ? std::optional{âge} : std::nullopt;
}

Réponse PlateformeEssai::AfficherBoîte(const Boîte& boîte)
{
    if (terminé)
        return Refus(boîte);
    boîtesMontrées.push_back(boîte);
    if (boîtes.empty()) {
        ADD_FAILURE() << "boîte qui n'a pas été annoncée : " << EnUtf8(boîte.Message);
        return Refus(boîte);
    }
    auto annoncée = std::move(boîtes.front());
    boîtes.pop_front();
    EXPECT_TRUE(Correspond(boîte.Message, annoncée.Message))
        << "montrée : " << EnUtf8(boîte.Message) << "\nannoncée : " << EnUtf8(annoncée.Message);
    if (annoncée.Titre) {
        EXPECT_EQ(EnUtf8(boîte.Titre), EnUtf8(*annoncée.Titre));
    }
    if (annoncée.Pendant)
        annoncée.Pendant();
    return annoncée.Choix;
}

std::optional<Texte> PlateformeEssai::DemanderFichierAOuvrir(const DialogueFichier& dialogue)
{
    if (terminé)
        return std::nullopt;
    dialogues.push_back(dialogue);
    return Prendre(fichiers, "dialogue de fichier");
}

std::optional<Texte> PlateformeEssai::DemanderFichierAEnregistrer(const DialogueFichier& dialogue)
{
    if (terminé)
        return std::nullopt;
    dialogues.push_back(dialogue);
    return Prendre(fichiers, "dialogue de fichier");
}

std::optional<Couleur> PlateformeEssai::DemanderCouleur(Couleur départ)
{
    if (terminé)
        return std::nullopt;
    couleursProposées.push_back(départ);
    return Prendre(couleurs, "dialogue de couleur");
}

std::optional<ChoixPolice> PlateformeEssai::DemanderPolice(const ChoixPolice& départ)
{
    if (terminé)
        return std::nullopt;
    policesProposées.push_back(départ);
    return Prendre(choixPolices, "dialogue de police");
}

bool PlateformeEssai::Imprimer(const TexteRiche& texte, const TexteRiche& sélection)
{
    if (terminé)
        return false;
    imprimés.emplace_back(texte.Caractères(), sélection.Caractères());
    return Prendre(impressions, "dialogue d'impression");
}

double PlateformeEssai::LargeurTexte(const Texte& texte, double taille)
{
    static constexpr double TwipsParPoint = 20;
    return static_cast<double>(texte.size()) * (taille > 0 ? taille : 12) * TwipsParPoint / 2;
}

// ---- Screens -----------------------------------------------------------------------------------------------------

namespace {

constexpr int Largeur = 12000; // 800 by 600 pixels, in twips
constexpr int Hauteur = 9000;

} // namespace

void PlateformeEssai::AfficherModal(Ecran& écran)
{
    if (terminé || !écran.EstChargé())
        return;
    écransMontrés.push_back(écran.Nom);
    écran.Dimensionner(Largeur, Hauteur);
    écran.Activer();
    if (modaux.empty()) {
        ADD_FAILURE() << "écran qui n'a pas été annoncé : " << écran.Nom;
    } else {
        const auto [type, faire] = std::move(modaux.front());
        modaux.pop_front();
        EXPECT_EQ(type, typeid(écran).name());
        if (écran.EstChargé() && type == typeid(écran).name())
            faire(écran);
    }
    if (écran.EstChargé() && !terminé)
        écran.FermerParCroix();
    if (écran.EstChargé() && !terminé)
        écran.Décharger();
}

// The windows go and the loops end; no screen is unloaded any more.
void PlateformeEssai::Terminer()
{
    terminé = true;
    échéances_.clear();
}

void PlateformeEssai::EcranFermé(Ecran& écran)
{
    std::erase_if(échéances_, [&](const auto& paire) { return &paire.first->EcranDe() == &écran; });
}

void PlateformeEssai::Repeindre(Ecran& écran)
{
    ++repeints;
    if (auRepeint)
        auRepeint(écran);
}

// ---- Time --------------------------------------------------------------------------------------------------------

void PlateformeEssai::RéglerMinuterie(Timer& minuterie)
{
    if (minuterie.EnMarche() && !terminé)
        échéances_[&minuterie] = temps_ + minuterie.Interval / 1000.0;
    else
        échéances_.erase(&minuterie);
}

void PlateformeEssai::Prévoir(std::chrono::milliseconds délai, std::function<void()> action)
{
    actions_.push_back({temps_ + static_cast<double>(délai.count()) / 1000.0, std::move(action)});
}

bool PlateformeEssai::Suivant(double limite, bool minuteries)
{
    const auto action = std::min_element(actions_.begin(), actions_.end(),
                                         [](const Action& a, const Action& b) { return a.Quand < b.Quand; });
    auto tic = échéances_.end();
    if (minuteries)
        tic = std::min_element(échéances_.begin(), échéances_.end(),
                               [](const auto& a, const auto& b) { return a.second < b.second; });
    const double quandAction = action == actions_.end() ? std::numeric_limits<double>::infinity() : action->Quand;
    const double quandTic = tic == échéances_.end() ? std::numeric_limits<double>::infinity() : tic->second;
    const double quand = std::min(quandAction, quandTic);
    if (quand > limite)
        return false;
    Passer(std::max(quand, temps_));
    if (quandAction <= quandTic) {
        const auto faire = std::move(action->Faire);
        actions_.erase(action);
        faire();
        return true;
    }
    auto& minuterie = *tic->first;
    tic->second = temps_ + minuterie.Interval / 1000.0;
    if (minuterie.Tick)
        minuterie.Tick();
    return true;
}

void PlateformeEssai::Passer(double temps)
{
    heure_ += temps - temps_;
    static constexpr double SecondesParJour = 86400;
    if (heure_ >= SecondesParJour)
        heure_ -= SecondesParJour;
    temps_ = temps;
}

namespace {

constexpr double Marge = 1e-9; // sums of tenths are not exact

double Secondes(std::chrono::milliseconds durée)
{
    return static_cast<double>(durée.count()) / 1000.0;
}

} // namespace

void PlateformeEssai::Avancer(std::chrono::milliseconds durée)
{
    const double limite = temps_ + Secondes(durée);
    while (Suivant(limite + Marge, true)) {
    }
    Passer(std::max(limite, temps_));
}

bool PlateformeEssai::Attendre(Ecran& écran, std::chrono::milliseconds durée)
{
    const double limite = temps_ + Secondes(durée);
    while (Vit(écran) && Suivant(limite + Marge, false)) {
    }
    if (Vit(écran))
        Passer(std::max(limite, temps_));
    return Vit(écran);
}

bool PlateformeEssai::AttendreArrêt(Timer& minuterie)
{
    auto& écran = minuterie.EcranDe();
    while (Vit(écran) && minuterie.EnMarche()) {
        if (!Suivant(std::numeric_limits<double>::max(), true)) {
            ADD_FAILURE() << "attente sans fin de " << minuterie.Nom;
            break;
        }
    }
    return Vit(écran);
}

void PlateformeEssai::VérifierFin() const
{
    EXPECT_TRUE(hasards.empty()) << hasards.size() << " tirages annoncés de trop";
    EXPECT_TRUE(amorcesLibres || !amorcé_) << "amorce sans tirage";
    for (const auto& boîte : boîtes)
        ADD_FAILURE() << "boîte annoncée jamais montrée : " << EnUtf8(boîte.Message);
    EXPECT_TRUE(fichiers.empty()) << "dialogue de fichier annoncé jamais montré";
    EXPECT_TRUE(couleurs.empty()) << "dialogue de couleur annoncé jamais montré";
    EXPECT_TRUE(choixPolices.empty()) << "dialogue de police annoncé jamais montré";
    EXPECT_TRUE(impressions.empty()) << "dialogue d'impression annoncé jamais montré";
    EXPECT_TRUE(modaux.empty()) << "écran annoncé jamais montré";
    EXPECT_TRUE(actions_.empty()) << actions_.size() << " actions prévues jamais faites";
}

// ---- The bench ---------------------------------------------------------------------------------------------------

namespace {

Chemin DossierNeuf()
{
    auto modèle = (std::filesystem::temp_directory_path() / "tirelune-XXXXXX").string();
    if (::mkdtemp(modèle.data()) == nullptr)
        ADD_FAILURE() << "pas de dossier pour l'essai";
    return modèle;
}

} // namespace

Banc::Banc() : application(plateforme), état(application.état), dossier(DossierNeuf())
{
    plateforme.dossier = dossier;
    plateforme.lecteurs = {DepuisChemin(dossier)};
    état.CheminAppli = DepuisChemin(dossier);
    état.CheminBilans = état.CheminAppli;
    RemplirTable(application);
}

Banc::~Banc()
{
    if (!plateforme.terminé) {
        for (auto écran = écrans_.rbegin(); écran != écrans_.rend(); ++écran)
            (*écran)->Décharger();
        if (choix_)
            choix_->Décharger();
    }
    plateforme.VérifierFin();
    std::error_code ignorée;
    std::filesystem::remove_all(dossier, ignorée);
}

Chemin Banc::Ecrire(const std::string& nom, std::string_view octets)
{
    const auto fichier = dossier / nom;
    std::filesystem::create_directories(fichier.parent_path());
    std::ofstream{fichier, std::ios::binary}.write(octets.data(), static_cast<std::streamsize>(octets.size()));
    return fichier;
}

Chemin Banc::EcrireChamps(const std::string& nom, const std::vector<Texte>& champs)
{
    const auto octets = ComposerChamps(champs);
    EXPECT_TRUE(octets.has_value());
    return Ecrire(nom, octets.value_or(""));
}

std::optional<std::string> Banc::Lire(const std::string& nom) const
{
    return LireFichier(dossier / nom);
}

bool Banc::Existe(const std::string& nom) const
{
    return std::filesystem::exists(dossier / nom);
}

frmExercices& Banc::Choix()
{
    if (!choix_) {
        Ecrire("Léa.bil", "");
        choix_ = std::make_unique<frmExercices>(application);
        choix_->Charger();
        choix_->Dimensionner(Largeur, Hauteur);
        choix_->Activer();
        choix_->cmbNoms.Montrer(choix_->cmbNoms.Chercher(u"Léa"));
        choix_->cmdOk.Cliquer();
    }
    return *choix_;
}

void Banc::ChargerTexte(TexteRiche texte, Texte titre)
{
    auto& choix = Choix();
    choix.rtfTexte.TextRTF(std::move(texte));
    choix.lblTexte.Caption = u" " + titre + u" ";
    choix.lblTexte.Visible = true;
    choix.lblVitesse.Caption = u"100";
    état.CheminTexteElève = état.CheminAppli + u"/";
    choix.cmbVocabulaire.Clear();
    choix.cmbVocabulaire.AddItems(MotsMarqués(choix.rtfTexte.TextRTF()));
}

void Banc::ChargerTexte(Texte texte, Texte titre)
{
    ChargerTexte(TexteRiche{NormaliserLignes(texte)}, std::move(titre));
}

void Banc::Vocabulaire(std::vector<Texte> mots)
{
    if (Choix().lblTexte.Caption().empty())
        ChargerTexte(u"Un texte.");
    Choix().cmbVocabulaire.Clear();
    Choix().cmbVocabulaire.AddItems(std::move(mots));
}

void Banc::Vocabulaire(std::initializer_list<Texte> mots)
{
    Vocabulaire(std::vector<Texte>{mots});
}

void Banc::Index(int exercice)
{
    Choix().lblIndex.Caption = EnTexte(exercice);
}

void Banc::Montrer(std::unique_ptr<Ecran> écran)
{
    auto& référence = *écran;
    écrans_.push_back(std::move(écran));
    référence.Charger();
    if (!référence.EstChargé())
        return;
    référence.Dimensionner(Largeur, Hauteur);
    référence.Activer();
}

Texte Banc::Note(int exercice)
{
    const auto& grille = Choix().fgRésultats;
    for (int rangée = 1; rangée < grille.Rows(); ++rangée) {
        if (grille.TextMatrix(rangée, 0) == Rogner(Choix().lblTexte.Caption))
            return grille.TextMatrix(rangée, exercice + 2);
    }
    return {};
}

} // namespace tirelune
