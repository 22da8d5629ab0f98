#include "fuzz/Plateforme.h"

#include "core/TexteRiche.h"

#include <algorithm>
#include <fstream>
#include <limits>

namespace tirelune {

namespace {

constexpr int TiragesMaximum = 200000; // a draw that takes more has no end
constexpr int BoîtesMaximum = 10000;
constexpr int BattementsMaximum = 1000000;
constexpr int ProfondeurMaximum = 8;
constexpr int Largeur = 12000; // 800 by 600 pixels, in twips
constexpr int Hauteur = 9000;

// One folder for the whole run, emptied before each input.
Chemin DossierVidé()
{
    static const Chemin racine = [] {
        std::error_code erreur;
        const Chemin mémoire{"/dev/shm"};
        const auto où =
            std::filesystem::is_directory(mémoire, erreur) ? mémoire : std::filesystem::temp_directory_path();
        auto modèle = (où / "tirelune-fuzz-XXXXXX").string();
        Exiger(::mkdtemp(modèle.data()) != nullptr);
        static const Chemin elle{modèle};
        std::atexit([] {
            std::error_code ignorée;
            std::filesystem::remove_all(elle, ignorée);
        });
        return elle;
    }();
    for (const auto& entrée : std::filesystem::directory_iterator{racine})
        std::filesystem::remove_all(entrée.path());
    const auto dossier = racine / "Tirelune"; // the recent files lie beside it
    std::filesystem::create_directory(dossier);
    return dossier;
}

void Ecrire(const Chemin& fichier, std::string_view octets)
{
    std::ofstream{fichier, std::ios::binary}.write(octets.data(), static_cast<std::streamsize>(octets.size()));
}

} // namespace

PlateformeFuzz::PlateformeFuzz(SuiteDOctets& suite) : dossier(DossierVidé()), suite_(suite) {}

void PlateformeFuzz::Poser(const std::string& nom, std::string_view octets) const
{
    Ecrire(dossier / nom, octets);
}

// ---- Dice, files, dialogs ----------------------------------------------------------------------------------------

// Every entry of a list comes up sooner or later: only a draw that has nothing left to find goes on for ever.
double PlateformeFuzz::Hasard()
{
    Exiger(++tirages_ < TiragesMaximum);
    dés_ += 0x9E3779B97F4A7C15 + suite_.Octet();
    auto z = dés_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EB;
    return static_cast<double>((z ^ (z >> 31U)) >> 11U) * 0x1p-53;
}

std::vector<Texte> PlateformeFuzz::Lecteurs()
{
    return {DepuisChemin(dossier), u"/n'existe pas"};
}

std::optional<EchecFichier> PlateformeFuzz::Réécrire(const Chemin& fichier, std::string_view contenu)
{
    const int décision = PannesPermises ? suite_.Octet() % 8 : 0;
    if (décision == 6)
        return EchecFichier::Ouverture;
    if (décision == 7) { // the disk was full
        Ecrire(fichier, contenu.substr(0, contenu.size() / 2));
        return EchecFichier::Ecriture;
    }
    return RéécrireFichier(fichier, contenu);
}

Réponse PlateformeFuzz::AfficherBoîte(const Boîte& boîte)
{
    tirages_ = 0;
    Exiger(!boîte.Message.empty() && ++Boîtes < BoîtesMaximum);
    const int décision = suite_.Octet() % 4;
    if (décision == 3 && !terminé_)
        Passer(std::chrono::milliseconds{suite_.Octet() * 10});
    const bool oui = !terminé_ && décision % 2 == 0;
    if (boîte.Choix == Boutons::OuiNon)
        return oui ? Réponse::Oui : Réponse::Non;
    return oui || boîte.Choix == Boutons::Ok ? Réponse::Ok : Réponse::Annuler;
}

std::optional<Texte> PlateformeFuzz::ChoisirFichier()
{
    if (terminé_)
        return std::nullopt;
    std::vector<Texte> fichiers{u"/n'existe/pas.rtf", DepuisChemin(dossier)};
    for (const auto& entrée : std::filesystem::directory_iterator{dossier})
        fichiers.push_back(DepuisChemin(entrée.path()));
    std::sort(fichiers.begin(), fichiers.end());
    fichiers.push_back(DepuisChemin(dossier / "Nouveau.rtf"));
    fichiers.push_back(DepuisChemin(dossier / "Nouveau.txt"));
    fichiers.push_back(DepuisChemin(dossier / u8"日本.rtf"));
    const auto choisi = suite_.Parmi(fichiers.size() + 1);
    return choisi == fichiers.size() ? std::nullopt : std::optional{fichiers[choisi]};
}

std::optional<Texte> PlateformeFuzz::DemanderFichierAOuvrir(const DialogueFichier&)
{
    return ChoisirFichier();
}

std::optional<Texte> PlateformeFuzz::DemanderFichierAEnregistrer(const DialogueFichier&)
{
    return ChoisirFichier();
}

std::optional<Couleur> PlateformeFuzz::DemanderCouleur(Couleur départ)
{
    const auto décision = suite_.Octet();
    return terminé_ || décision % 2 == 0 ? std::nullopt : std::optional{décision % 4 == 1 ? départ : Rouge};
}

std::optional<ChoixPolice> PlateformeFuzz::DemanderPolice(const ChoixPolice& départ)
{
    const auto décision = suite_.Octet();
    if (terminé_ || décision % 2 == 0)
        return std::nullopt;
    auto choix = départ;
    choix.Taille = décision;
    choix.Gras = décision % 4 == 1;
    return choix;
}

bool PlateformeFuzz::Imprimer(const TexteRiche& texte, const TexteRiche& sélection)
{
    Exiger(sélection.Longueur() <= texte.Longueur());
    return suite_.Octet() % 2 == 0;
}

void PlateformeFuzz::DemanderPolices(std::function<void(std::vector<Texte>)> reçues)
{
    reçues({u"Arial", u"Comic Sans MS", u"Verdana"});
}

// ---- Screens and time --------------------------------------------------------------------------------------------

void PlateformeFuzz::AfficherModal(Ecran& écran)
{
    if (!Vit(écran))
        return;
    écran.Dimensionner(Largeur, Hauteur);
    écran.Activer();
    while (Vit(écran) && !suite_.Epuisée()) {
        tirages_ = 0;
        Geste(écran);
    }
    if (Vit(écran))
        écran.FermerParCroix();
    if (Vit(écran))
        écran.Décharger();
    if (!terminé_) // nothing of a closed screen is left running
        Exiger(std::none_of(écran.Minuteries().begin(), écran.Minuteries().end(),
                            [](const Timer* une) { return une->EnMarche(); }));
}

void PlateformeFuzz::EcranFermé(Ecran& écran)
{
    std::erase_if(échéances_, [&](const auto& paire) { return &paire.first->EcranDe() == &écran; });
}

void PlateformeFuzz::Terminer()
{
    terminé_ = true;
    échéances_.clear();
}

void PlateformeFuzz::RéglerMinuterie(Timer& minuterie)
{
    if (minuterie.EnMarche() && !terminé_)
        échéances_[&minuterie] = temps_ + minuterie.Interval / 1000.0;
    else
        échéances_.erase(&minuterie);
}

bool PlateformeFuzz::Battre(double limite)
{
    const auto tic = std::min_element(échéances_.begin(), échéances_.end(), [](const auto& a, const auto& b) {
        return a.second != b.second ? a.second < b.second : a.first->Nom < b.first->Nom; // addresses vary
    });
    if (tic == échéances_.end() || tic->second > limite)
        return false;
    Avancer(std::max(tic->second, temps_));
    auto& minuterie = *tic->first;
    tic->second = temps_ + minuterie.Interval / 1000.0;
    tirages_ = 0;
    if (minuterie.Tick)
        minuterie.Tick();
    return true;
}

void PlateformeFuzz::Avancer(double temps)
{
    static constexpr double SecondesParJour = 86400;
    heure_ += temps - temps_;
    while (heure_ >= SecondesParJour)
        heure_ -= SecondesParJour;
    temps_ = temps;
}

void PlateformeFuzz::Passer(std::chrono::milliseconds durée)
{
    const double limite = temps_ + static_cast<double>(durée.count()) / 1000.0;
    while (Battre(limite)) {
    }
    Avancer(std::max(limite, temps_));
}

bool PlateformeFuzz::Attendre(Ecran& écran, std::chrono::milliseconds durée)
{
    tirages_ = 0;
    if (!Vit(écran))
        return false;
    Avancer(temps_ + static_cast<double>(durée.count()) / 1000.0);
    if (suite_.Octet() % 8 == 7)
        écran.FermerParCroix();
    return Vit(écran);
}

bool PlateformeFuzz::AttendreArrêt(Timer& minuterie)
{
    auto& écran = minuterie.EcranDe();
    ++profondeur_;
    for (int battements = 0; Vit(écran) && minuterie.EnMarche(); ++battements) {
        Exiger(battements < BattementsMaximum);
        if (profondeur_ < ProfondeurMaximum && suite_.Octet() % 4 == 3)
            Geste(écran);
        else
            Exiger(Battre(std::numeric_limits<double>::max())); // otherwise nothing would ever end the wait
    }
    --profondeur_;
    return Vit(écran);
}

} // namespace tirelune
