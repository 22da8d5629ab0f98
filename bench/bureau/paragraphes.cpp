// The editor with a text of many short paragraphs, on real widgets without a display: the processor time from a gesture
// until the window is painted anew. Nothing is waited for meanwhile, so that on an idle machine it is the time itself.
// Exit code 1 when a goal is missed.
//
// Usage: banc-paragraphes [--sans-limite] [paragraphs]
#include "authoring/frmEnseignant.h"
#include "bench/bureau/Chronometre.h"
#include "core/EcrivainRtf.h"
#include "desktop/Conversions.h"
#include "desktop/PlateformeQt.h"
#include "desktop/Style.h"

#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>

#include <cstdlib>
#include <fstream>
#include <string_view>

using namespace tirelune;

namespace {

constexpr double OuvertureMaximale = 1000; // ms
constexpr double RéponseMaximale = 50;     // ms

// Each paragraph with a bold word and a word struck through, as in a text made ready for pupils.
TexteRiche TexteLong(int paragraphes)
{
    Format gras;
    gras.Gras = true;
    Format barré;
    barré.Barré = true;
    TexteRiche texte;
    for (int i = 0; i < paragraphes; ++i) {
        texte.Ajouter(u"Le petit ", {}, {});
        texte.Ajouter(u"chat", barré, {});
        texte.Ajouter(u" gris dort au soleil, tout en haut du ", {}, {});
        texte.Ajouter(u"vieux", gras, {});
        texte.Ajouter(u" mur.\r\n", {}, {});
    }
    return texte;
}

class Séance {
public:
    Séance(frmEnseignant& éditeur, Fenêtre& fenêtre)
        : éditeur_(éditeur), fenêtre_(fenêtre), zone_(*fenêtre.findChild<QTextEdit*>(QStringLiteral("rtfTexte")))
    {
    }

    void Jouer(int paragraphes)
    {
        auto& boîte = éditeur_.rtfTexte;
        Chronomètre::Titrer("paragraphs", paragraphes);
        chrono_.Mesurer("open", 1, OuvertureMaximale, [&] { éditeur_.mnuRécent(0).Cliquer(); });
        const auto milieu = boîte.Text().find(u"Le petit", boîte.Longueur() / 2);
        const auto fin = boîte.Longueur();
        for (const auto& [nom, place] : {std::pair{"a key at the start", std::size_t{0}},
                                         {"a key in the middle", milieu},
                                         {"a key at the end", fin}}) {
            Placer(place, 0);
            chrono_.Mesurer(nom, 20, RéponseMaximale, [&] { Taper(Qt::Key_E, QStringLiteral("e")); });
            chrono_.Mesurer("  Enter there", 5, RéponseMaximale, [&] { Taper(Qt::Key_Return, QStringLiteral("\r")); });
            chrono_.Mesurer("  Backspace there", 20, RéponseMaximale, [&] { Taper(Qt::Key_Backspace, {}); });
        }
        Placer(milieu, 8);
        const auto rouge = [&] { boîte.SelColor = boîte.SelColor() == Rouge ? Noir : Rouge; };
        chrono_.Mesurer("colour of a word", 5, RéponseMaximale, rouge);
        chrono_.Mesurer("centre a paragraph", 1, RéponseMaximale, [&] { éditeur_.tlbBoutons.Cliquer("btnCentrer"); });
        chrono_.Mesurer("undo", 1, RéponseMaximale, [&] { éditeur_.tlbBoutons.Cliquer("btnAnnuler"); });
        for (const auto& [nom, clé] :
             {std::pair{"bold, all", "btnGras"}, {"centre, all", "btnCentrer"}, {"underline, all", "btnSouligné"}}) {
            chrono_.Mesurer("select all", 1, RéponseMaximale, [&] { éditeur_.mnuSélectionner.Cliquer(); });
            chrono_.Mesurer(nom, 1, RéponseMaximale, [&] { éditeur_.tlbBoutons.Cliquer(clé); });
            chrono_.Mesurer("  undo", 1, RéponseMaximale, [&] { éditeur_.tlbBoutons.Cliquer("btnAnnuler"); });
        }
        chrono_.Mesurer("size, all", 1, RéponseMaximale, [&] { boîte.SelFontSize = 20; });
        chrono_.Mesurer("a page down", 20, RéponseMaximale, [&] { Taper(Qt::Key_PageDown, {}); });
        chrono_.Mesurer("a page up", 20, RéponseMaximale, [&] { Taper(Qt::Key_PageUp, {}); });
        chrono_.Mesurer("to the end", 1, RéponseMaximale, [&] { Placer(fin, 0); });
    }

    [[nodiscard]] int Manqués() const { return chrono_.Manqués(); }

private:
    void Placer(std::size_t début, std::size_t longueur)
    {
        éditeur_.rtfTexte.Sélectionner(début, longueur);
        fenêtre_.Synchroniser();
    }

    void Taper(int touche, const QString& texte)
    {
        zone_.setFocus();
        QKeyEvent frappe{QEvent::KeyPress, touche, Qt::NoModifier, texte};
        QCoreApplication::sendEvent(&zone_, &frappe);
    }

    frmEnseignant& éditeur_;
    Fenêtre& fenêtre_;
    QTextEdit& zone_;
    Chronomètre chrono_{fenêtre_};
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qt{argc, argv};
    InstallerApparence();
    bool limites = true;
    int paragraphes = 30'000;
    for (int i = 1; i < argc; ++i) {
        if (std::string_view{argv[i]} == "--sans-limite")
            limites = false;
        else
            paragraphes = std::atoi(argv[i]);
    }

    const QTemporaryDir dossier;
    const auto fichier = dossier.filePath(QStringLiteral("long.rtf"));
    std::ofstream{fichier.toStdString(), std::ios::binary} << EcrireRtf(TexteLong(paragraphes));
    std::ofstream{dossier.filePath(QStringLiteral("bancRécents.dat")).toStdString()} << fichier.toStdString() << "\r\n";

    PlateformeQt plateforme;
    Application application{plateforme};
    frmTirelune accueil{application};
    accueil.Charger();
    application.état.CheminAppli = DepuisQString(dossier.filePath(QStringLiteral("banc")));
    frmEnseignant éditeur{accueil};
    int manqués = 0;
    QTimer::singleShot(0, qApp, [&] {
        Séance séance{éditeur, *plateforme.Devant()};
        éditeur.mnuAuto.Checked = false;
        séance.Jouer(paragraphes);
        manqués = séance.Manqués();
        application.état.TexteModifié = false;
        éditeur.Décharger();
    });
    éditeur.Afficher();
    return manqués > 0 && limites ? 1 : 0;
}
