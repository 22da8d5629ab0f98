#include "desktop/PlateformeQt.h"

#include "core/Ecran.h"
#include "desktop/Accessibilite.h"
#include "desktop/Apparence.h"
#include "desktop/Conversions.h"
#include "desktop/Dialogues.h"
#include "desktop/Fenetre.h"
#include "desktop/Impression.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontMetricsF>
#include <QLocale>
#include <QTime>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tirelune {

// While it lives, the loop is known to whoever closes its screen, and input goes to the loop in front alone.
class PlateformeQt::Séjour {
public:
    Séjour(PlateformeQt& plateforme, Boucle boucle, bool entréeJetée)
        : plateforme_(plateforme), boucle_(std::move(boucle)), avant_(plateforme.entréeJetée_)
    {
        plateforme.entréeJetée_ = entréeJetée;
        plateforme.boucles_.push_back(&boucle_);
    }
    Séjour(const Séjour&) = delete;
    Séjour& operator=(const Séjour&) = delete;
    ~Séjour()
    {
        plateforme_.boucles_.pop_back();
        plateforme_.entréeJetée_ = avant_;
    }

private:
    PlateformeQt& plateforme_;
    Boucle boucle_;
    bool avant_;
};

PlateformeQt::PlateformeQt()
{
    AmorcerHasard();
    InstallerAccessibilité();
    qApp->installEventFilter(this);
    QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* foyer) {
        anneau_.Suivre(foyer);
        FocusChangé();
    });
}

PlateformeQt::~PlateformeQt()
{
    qApp->removeEventFilter(this);
}

// ---- Clock, dice, files ----------------------------------------------------------------------------------------

double PlateformeQt::Horloge()
{
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void PlateformeQt::AmorcerHasard()
{
    // The clock alone would give the same draw again and again within one of its ticks.
    const auto maintenant =
        static_cast<unsigned long long>(std::chrono::system_clock::now().time_since_epoch().count());
    std::seed_seq graine{static_cast<unsigned>(maintenant), static_cast<unsigned>(maintenant >> 32U),
                         static_cast<unsigned>(++amorces_), static_cast<unsigned>(dés_())};
    dés_.seed(graine);
}

double PlateformeQt::Hasard()
{
    return static_cast<double>(dés_() >> 11U) * 0x1p-53;
}

Chemin PlateformeQt::DossierProgramme()
{
    return EnChemin(DepuisQString(QApplication::applicationDirPath()));
}

std::vector<Texte> PlateformeQt::Lecteurs()
{
    std::vector<Texte> lecteurs{u"/", DepuisQString(QDir::homePath())};
    for (const char* montages : {"/media", "/mnt", "/run/media"}) {
        const QDir racine{montages};
        for (const auto& nom : racine.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
            lecteurs.push_back(DepuisQString(racine.filePath(nom)));
    }
    return lecteurs;
}

std::optional<EchecFichier> PlateformeQt::Réécrire(const Chemin& fichier, std::string_view contenu)
{
    return RéécrireFichier(fichier, contenu);
}

std::optional<std::chrono::seconds> PlateformeQt::AgeFichier(const Chemin& fichier)
{
    std::error_code erreur;
    const auto écrit = std::filesystem::last_write_time(fichier, erreur);
    if (erreur)
        return std::nullopt;
    return std::chrono::floor<std::chrono::seconds>(std::filesystem::file_time_type::clock::now() - écrit);
}

char16_t PlateformeQt::SigneDécimal()
{
    const auto signe = QLocale::system().decimalPoint();
    return signe.isEmpty() ? u',' : signe.front().unicode();
}

// ---- Boxes and dialogs -----------------------------------------------------------------------------------------

void PlateformeQt::MontrerDialogue(QDialog& dialogue)
{
    auto* devant = Devant();
    if (devant != nullptr)
        devant->Synchroniser();
    const Séjour séjour{
        *this, {devant != nullptr ? &devant->EcranDe() : nullptr, nullptr, [&dialogue] { dialogue.reject(); }}, false};
    dialogue.exec();
}

Réponse PlateformeQt::AfficherBoîte(const Boîte& boîte)
{
    if (terminé_)
        return boîte.Choix == Boutons::Ok       ? Réponse::Ok
               : boîte.Choix == Boutons::OuiNon ? Réponse::Non
                                                : Réponse::Annuler;
    BoîteMessage message{boîte, Devant()};
    MontrerDialogue(message);
    return message.Donnée();
}

std::optional<Texte> PlateformeQt::DemanderFichier(const DialogueFichier& demande, bool enregistrer)
{
    if (terminé_)
        return std::nullopt;
    ChargerTraductions();
    const auto dialogue = CréerDialogueFichier(demande, enregistrer, Devant());
    MontrerDialogue(*dialogue);
    return FichierChoisi(*dialogue);
}

std::optional<Texte> PlateformeQt::DemanderFichierAOuvrir(const DialogueFichier& dialogue)
{
    return DemanderFichier(dialogue, false);
}

std::optional<Texte> PlateformeQt::DemanderFichierAEnregistrer(const DialogueFichier& dialogue)
{
    return DemanderFichier(dialogue, true);
}

std::optional<Couleur> PlateformeQt::DemanderCouleur(Couleur départ)
{
    if (terminé_)
        return std::nullopt;
    ChargerTraductions();
    const auto dialogue = CréerDialogueCouleur(départ, Devant());
    MontrerDialogue(*dialogue);
    return CouleurChoisie(*dialogue);
}

std::optional<ChoixPolice> PlateformeQt::DemanderPolice(const ChoixPolice& départ)
{
    if (terminé_)
        return std::nullopt;
    ChargerTraductions();
    const auto dialogue = CréerDialoguePolice(départ, Devant());
    MontrerDialogue(*dialogue);
    return PoliceChoisie(*dialogue);
}

bool PlateformeQt::Imprimer(const TexteRiche& texte, const TexteRiche& sélection)
{
    if (terminé_)
        return false;
    ChargerTraductions();
    Impression impression{sélection.Longueur() > 0, Devant()};
    MontrerDialogue(impression.Dialogue());
    if (!impression.Acceptée())
        return false;
    impression.Imprimer(impression.SélectionSeule() ? sélection : texte);
    return true;
}

Texte PlateformeQt::LirePressePapiers()
{
    return DepuisQString(QApplication::clipboard()->text());
}

void PlateformeQt::EcrirePressePapiers(const Texte& texte)
{
    QApplication::clipboard()->setText(EnQString(texte));
}

// ---- Fonts -----------------------------------------------------------------------------------------------------

void PlateformeQt::DemanderPolices(std::function<void(std::vector<Texte>)> reçues)
{
    attendentPolices_.push_back(std::move(reçues));
    if (peinte_)
        QTimer::singleShot(0, this, [this] { ListerPolices(); });
}

void PlateformeQt::FenêtrePeinte()
{
    if (jusquAuFond_ != nullptr) {
        QMetaObject::invokeMethod(
            jusquAuFond_, [boucle = jusquAuFond_] { boucle->quit(); }, Qt::QueuedConnection);
        return;
    }
    if (peinte_)
        return;
    peinte_ = true;
    QTimer::singleShot(0, this, [this] { ListerPolices(); });
}

void PlateformeQt::ListerPolices()
{
    if (attendentPolices_.empty() || terminé_ || fenêtres_.empty())
        return;
    std::vector<Texte> noms;
    for (const auto& nom : QFontDatabase::families())
        noms.push_back(DepuisQString(nom));
    const auto reçues = std::move(attendentPolices_);
    attendentPolices_.clear();
    for (const auto& reçue : reçues)
        reçue(noms);
}

double PlateformeQt::LargeurTexte(const Texte& texte, double taille)
{
    const double échelle = Devant() != nullptr ? Devant()->Echelle() : 1;
    const auto police = PolicePour({}, taille, false, échelle);
    return QFontMetricsF{police}.horizontalAdvance(EnAffichage(texte)) * TwipsParPixel / échelle;
}

// ---- Screens ---------------------------------------------------------------------------------------------------

bool PlateformeQt::Montré(const Ecran& écran) const
{
    return std::any_of(fenêtres_.begin(), fenêtres_.end(),
                       [&](const Fenêtre* fenêtre) { return &fenêtre->EcranDe() == &écran && !fenêtre->Fermée(); });
}

void PlateformeQt::AfficherModal(Ecran& écran)
{
    if (terminé_ || !écran.EstChargé())
        return;
    auto* dessous = Devant();
    {
        Fenêtre fenêtre{écran, dessous};
        fenêtre.Peinte = [this] { FenêtrePeinte(); };
        fenêtres_.push_back(&fenêtre);
        QEventLoop boucle;
        const Séjour séjour{*this, {&écran, nullptr, [&boucle] { boucle.quit(); }}, false};
        const bool activé = std::exchange(fondDAbord_, false);
        if (activé)
            MontrerFond(fenêtre);
        if (!fenêtre.Fermée()) {
            for (auto* minuterie : écran.Minuteries())
                RéglerMinuterie(*minuterie);
            fenêtre.Ouvrir();
        }
        if (!activé && écran.EstChargé() && !terminé_)
            écran.Activer();
        if (!fenêtre.Fermée())
            boucle.exec();
        fenêtres_.pop_back();
    }
    if (dessous != nullptr && !dessous->Fermée() && !terminé_)
        dessous->activateWindow();
}

void PlateformeQt::MontrerFond(Fenêtre& fenêtre)
{
    static constexpr auto Patience = std::chrono::milliseconds{300}; // a window that nobody sees isn't painted
    QEventLoop boucle;
    fenêtre.MontrerFond();
    fenêtre.EcranDe().Activer(); // it may say what the background is
    jusquAuFond_ = &boucle;
    const Séjour séjour{*this, {&fenêtre.EcranDe(), nullptr, [&boucle] { boucle.quit(); }}, true};
    QTimer::singleShot(Patience, &boucle, [&boucle] { boucle.quit(); });
    if (!fenêtre.Fermée())
        boucle.exec();
    jusquAuFond_ = nullptr;
}

void PlateformeQt::EcranFermé(Ecran& écran)
{
    for (auto* minuterie : écran.Minuteries())
        Désarmer(*minuterie);
    for (auto* fenêtre : fenêtres_) {
        if (&fenêtre->EcranDe() == &écran)
            fenêtre->Fermer();
    }
    for (auto* boucle : boucles_) {
        if (boucle->Porteur == &écran)
            boucle->Quitter();
    }
}

void PlateformeQt::Terminer()
{
    terminé_ = true;
    minuteries_.clear();
    attendentPolices_.clear();
    for (auto* fenêtre : fenêtres_)
        fenêtre->Fermer();
    for (auto* boucle : boucles_)
        boucle->Quitter();
}

// ---- Painting and waiting --------------------------------------------------------------------------------------

void PlateformeQt::Repeindre(Ecran& écran)
{
    for (auto* fenêtre : fenêtres_) {
        if (&fenêtre->EcranDe() == &écran)
            fenêtre->Repeindre();
    }
}

bool PlateformeQt::Attendre(Ecran& écran, std::chrono::milliseconds durée)
{
    if (terminé_ || !écran.EstChargé())
        return false;
    Repeindre(écran);
    {
        QEventLoop boucle;
        const Séjour séjour{*this, {&écran, nullptr, [&boucle] { boucle.quit(); }}, true};
        QTimer fin;
        fin.setTimerType(Qt::PreciseTimer);
        fin.setSingleShot(true);
        QObject::connect(&fin, &QTimer::timeout, [&boucle] { boucle.quit(); });
        fin.start(durée);
        boucle.exec();
        // What was clicked up to now is dropped with the rest.
        if (écran.EstChargé() && !terminé_)
            QCoreApplication::processEvents();
    }
    if (!entréeJetée_)
        RendreRetardées();
    return écran.EstChargé() && !terminé_;
}

bool PlateformeQt::AttendreArrêt(Timer& minuterie)
{
    auto& écran = minuterie.EcranDe();
    if (terminé_ || !écran.EstChargé())
        return false;
    if (minuterie.EnMarche()) {
        Armer(minuterie);
        QEventLoop boucle;
        const Séjour séjour{*this, {&écran, &minuterie, [&boucle] { boucle.quit(); }}, false};
        boucle.exec();
    }
    return écran.EstChargé() && !terminé_;
}

void PlateformeQt::RéglerMinuterie(Timer& minuterie)
{
    // The timers of a screen that isn't shown yet start with it.
    if (minuterie.EnMarche() && !terminé_) {
        if (Montré(minuterie.EcranDe()))
            Armer(minuterie);
        return;
    }
    Désarmer(minuterie);
    for (auto* boucle : boucles_) {
        if (boucle->Attendue == &minuterie)
            boucle->Quitter();
    }
}

void PlateformeQt::Armer(Timer& minuterie)
{
    auto& place = minuteries_
                      .try_emplace(&minuterie, nullptr,
                                   [](QTimer* une) {
                                       une->stop();
                                       une->deleteLater(); // it may be the one that is ticking
                                   })
                      .first->second;
    if (!place) {
        place.reset(new QTimer);
        place->setTimerType(Qt::PreciseTimer);
        QObject::connect(place.get(), &QTimer::timeout, [this, &minuterie] { Battre(minuterie); });
    }
    if (!place->isActive() || place->interval() != minuterie.Interval)
        place->start(minuterie.Interval);
}

void PlateformeQt::Désarmer(Timer& minuterie)
{
    minuteries_.erase(&minuterie);
    retardées_.erase(&minuterie);
}

void PlateformeQt::Battre(Timer& minuterie)
{
    if (entréeJetée_) {
        retardées_.insert(&minuterie);
        return;
    }
    if (minuterie.EnMarche() && minuterie.Tick)
        minuterie.Tick();
}

void PlateformeQt::RendreRetardées()
{
    QTimer::singleShot(0, this, [this] {
        FocusChangé(); // it may have gone elsewhere meanwhile
        while (!retardées_.empty() && !entréeJetée_) {
            auto& minuterie = **retardées_.begin();
            retardées_.erase(retardées_.begin());
            Battre(minuterie);
        }
    });
}

void PlateformeQt::FocusChangé()
{
    if (auto* devant = Devant(); devant != nullptr && !entréeJetée_)
        devant->NoterFocus();
}

// ---- Input -----------------------------------------------------------------------------------------------------

bool PlateformeQt::eventFilter(QObject* visé, QEvent* événement)
{
    switch (événement->type()) {
    case QEvent::Show:
    case QEvent::WindowActivate:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        break;
    default:
        return false;
    }
    const bool entrée = événement->type() != QEvent::Show && événement->type() != QEvent::WindowActivate;
    if (entrée && entréeJetée_)
        return true;
    return visé->isWidgetType() && Filtrer(static_cast<QWidget&>(*visé), *événement);
}

bool PlateformeQt::Filtrer(QWidget& visé, QEvent& événement)
{
    auto* devant = Devant();
    if (devant == nullptr || visé.window() != devant)
        devant = nullptr;
    else if (événement.type() == QEvent::MouseButtonPress || événement.type() == QEvent::MouseButtonDblClick)
        devant->Synchroniser(); // what is clicked is what the screen shows
    if (gestes_.Ecarter(visé, événement))
        return true;
    anneau_.Voir(événement);
    if (événement.type() == QEvent::ContextMenu)
        ChargerTraductions();
    return devant != nullptr && devant->Filtrer(&visé, &événement);
}

} // namespace tirelune
