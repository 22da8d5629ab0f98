// The lexicon's editor with many words, on real widgets without a display: opening, saving, and the processor time from
// a gesture until the window is painted anew. Exit code 1 when a goal is missed.
//
// Usage: banc-lexique [--sans-limite] [words]
#include "authoring/lexicon/frmLexique.h"
#include "bench/bureau/Chronometre.h"
#include "core/FichierChamps.h"
#include "desktop/Conversions.h"
#include "desktop/PlateformeQt.h"
#include "desktop/Style.h"

#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdlib>
#include <fstream>
#include <string_view>

using namespace tirelune;

namespace {

constexpr double OuvertureMaximale = 300; // ms
constexpr double RéponseMaximale = 16;
constexpr double EnregistrementMaximal = 300;
constexpr int MotsParFamille = 4; // of the dictionary
constexpr int MotsPrévus = 20'000;

Texte MotNuméro(int i)
{
    static constexpr VueTexte Syllabes[] = {u"ba", u"ché", u"do", u"fê", u"gui", u"lœ", u"mou", u"pin"};
    Texte mot;
    for (int reste = i + 64; reste > 0; reste /= 8)
        mot += Syllabes[reste % 8];
    return mot;
}

void EcrireLexique(const QTemporaryDir& dossier, int mots)
{
    std::vector<Texte> dictionnaire;
    std::vector<Texte> familles;
    std::vector<Texte> synonymes;
    for (int i = 0; i < mots; ++i) {
        const auto mot = MotNuméro(i);
        dictionnaire.insert(dictionnaire.end(), {Texte{Marqueur}, mot, u"Ce que veut dire " + mot + u".", u""});
        if (i % MotsParFamille == 0)
            familles.insert(familles.end(), {Texte{Marqueur}, u"thème " + MotNuméro(i / 40), u"sous " + MotNuméro(i),
                                             mot, u"un " + mot});
        if (i % 20 == 0)
            synonymes.insert(synonymes.end(), {Texte{Marqueur}, mot, u"autre " + mot});
    }
    const auto écrire = [&](const char* nom, const std::vector<Texte>& champs) {
        std::ofstream{dossier.filePath(QString::fromUtf8(nom)).toStdString(), std::ios::binary}
            << ComposerChamps(champs).value();
    };
    écrire("DicPrinc.dat", dictionnaire);
    écrire("Familles.dat", familles);
    écrire("Synonymes.dat", synonymes);
    écrire("banc.dic",
           {dictionnaire.begin(), dictionnaire.begin() + std::min<std::ptrdiff_t>(4 * 200, std::ssize(dictionnaire))});
}

void Taper(Fenêtre& fenêtre, const char* champ, int touche, const QString& texte)
{
    auto* widget = fenêtre.findChild<QWidget*>(QString::fromUtf8(champ));
    widget->setFocus();
    QKeyEvent frappe{QEvent::KeyPress, touche, Qt::NoModifier, texte};
    QCoreApplication::sendEvent(widget, &frappe);
}

void Jouer(frmLexique& écran, Fenêtre& fenêtre, Chronomètre& chrono, double proportion)
{
    const double but = RéponseMaximale * proportion;
    auto& général = écran.cmbListe(SélecteurDicPrinc);
    int place = 0;
    const auto suivant = [&] { général.Choisir(place = (place + 7919) % général.ListCount()); };
    chrono.Mesurer("a key", 20, but, [&] { Taper(fenêtre, "txtMot(10)", Qt::Key_P, QStringLiteral("p")); });
    écran.txtMot(SélecteurDicPrinc).Text = général.Text;
    chrono.Mesurer("a pick", 20, but, suivant);
    chrono.Mesurer("a theme picked", 20, but,
                   [&] { écran.cmbListe(0).Choisir(place = (place + 31) % écran.cmbListe(0).ListCount()); });
    chrono.Mesurer("attach", 20, but, [&] {
        suivant();
        écran.cmdAttacher.Cliquer();
    });
    int nouveaux = 0;
    chrono.Mesurer("a new word", 20, but, [&] {
        écran.txtMot(SélecteurDicTexte).Saisir(u"nouveau " + MotNuméro(++nouveaux));
        Taper(fenêtre, "txtMot(9)", Qt::Key_Return, QStringLiteral("\r"));
    });
    chrono.Mesurer("rename", 20, but, [&] {
        écran.cmdModifier(SélecteurDicPrinc).Cliquer();
        écran.txtModif.Saisir(u"renommé " + MotNuméro(++nouveaux));
        écran.txtModif.Taper({u'\r', Touche::Entrée});
    });
    chrono.Mesurer("delete", 20, but, [&] { écran.cmdSupprimer(SélecteurDicPrinc).Cliquer(); });
    chrono.MesurerDisque("save", 3, EnregistrementMaximal * proportion, [&] { écran.cmdEnregistrer.Cliquer(); });
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qt{argc, argv};
    InstallerApparence();
    bool limites = true;
    int mots = MotsPrévus;
    for (int i = 1; i < argc; ++i) {
        if (std::string_view{argv[i]} == "--sans-limite")
            limites = false;
        else
            mots = std::max(1, std::atoi(argv[i]));
    }
    const double proportion = std::max(1.0, static_cast<double>(mots) / MotsPrévus);

    const QTemporaryDir dossier;
    EcrireLexique(dossier, mots);
    PlateformeQt plateforme;
    Application application{plateforme};
    application.état.CheminAppli = DepuisQString(dossier.path());
    application.état.CheminTextes = application.état.CheminAppli + u"/";
    application.état.TitreFichierTexte = u"banc";

    int manqués = 0;
    frmLexique écran{application};
    Chronomètre::Titrer("words", mots);
    const double départ = Chronomètre::TempsProcesseur();
    QTimer::singleShot(0, qApp, [&] {
        auto& fenêtre = *plateforme.Devant();
        Chronomètre chrono{fenêtre};
        fenêtre.Repeindre();
        const double ouverture = Chronomètre::TempsProcesseur() - départ;
        chrono.Noter("open", ouverture, ouverture, OuvertureMaximale * proportion);
        Jouer(écran, fenêtre, chrono, proportion);
        manqués = chrono.Manqués();
        écran.Décharger();
    });
    écran.Afficher();
    return manqués > 0 && limites ? 1 : 0;
}
