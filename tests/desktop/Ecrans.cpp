// Every row of the table of screens, opened by its real opener with real widgets.
#include "TableEcrans.h"
#include "authoring/frmEnseignant.h"
#include "core/FichierChamps.h"
#include "core/frmTirelune.h"
#include "followup/EnregistrerNotes.h"
#include "followup/GrilleRésultats.h"
#include "followup/frmExercices.h"
#include "tests/desktop/Atelier.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileDialog>
#include <QListWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QWindow>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>

namespace tirelune {

using namespace std::chrono_literals;

namespace {

using Noms = std::set<std::string>;

const std::filesystem::path Sources{DOSSIER_SOURCES};

// What no screen shows: lists, tables and marks that rules work with. All the rest must have its place.
const std::map<std::string, Noms> Réserves{
    {"frmEnseignant", {"mnuAnnuler", "rtfSauve"}}, // the option is there for its shortcut
    {"frmExercices", {"cmbVocabulaire", "fgRésultats", "lblIndex", "listeBil", "rtfTexte"}},
    {"frmGestionEleves", {"listeBil"}},
    {"frmMotsEnDésordre", {"cmbMots", "cmbOrdre", "lblBanque", "lblCorrigé", "lblPassage"}},
    {"frmPendu", {"cmbMots", "imgRéf", "lblRéf"}},
    {"frmPoursuite", {"lblCorrigé", "lblPassage"}},
    {"frmQuestionnaire1", {"fgQuestions"}},
    {"frmSérie", {"lblCompteur"}},
};

// "lblMot" for "lblMot(3)".
std::string SansIndex(const Elément& élément)
{
    return élément.Nom.substr(0, élément.Nom.find('('));
}

class Ecrans : public Atelier {
protected:
    Ecrans();

    [[nodiscard]] Noms Table() const;
    // A screen of that name, made by the first opener that suits it.
    std::unique_ptr<Ecran> Créer(const std::string& nom);
    // Opens each screen of the table at 800 by 600, and plays the script on it.
    void SurChacun(const std::function<void(Ecran&)>& script);
    // The screen, opened anew, as the script finds it.
    void Montrer(const std::string& nom, const std::function<void(Ecran&)>& script);

    [[nodiscard]] QRect Place(const QWidget& widget) { return {widget.mapTo(&Devant(), QPoint{0, 0}), widget.size()}; }
    // What is hit at the point is the widget, or a part of it.
    [[nodiscard]] bool EstTouché(const QWidget& widget, QPoint lieu);

    QTemporaryDir dossier;
    frmTirelune accueil{application};
    frmExercices choix{application};
    frmEnseignant éditeur{accueil};
};

Ecrans::Ecrans()
{
    RemplirTable(application);
    const auto chemin = DepuisQString(dossier.path());
    application.état.CheminAppli = chemin;
    application.état.CheminBilans = chemin;
    const auto bilan = EnChemin(Joindre(chemin, u"Léa.bil"));
    std::vector<Texte> fiche(1 + NombreColonnes); // a file that is whole is read at once
    fiche[0] = Marqueur;
    std::ofstream{bilan} << ComposerChamps(fiche).value();
    std::filesystem::last_write_time(bilan, std::filesystem::file_time_type::clock::now() - 24h); // nobody is at it
    for (const auto* suffixe : {".rtf", ".qst"}) {
        const auto nom = std::string{"La course des escargots"} + suffixe;
        std::filesystem::copy_file(Sources / "textes" / nom, EnChemin(chemin) / nom);
    }
    accueil.Charger();
    choix.Charger();
    choix.cmbNoms.Choisir(choix.cmbNoms.Chercher(u"Léa"));
    choix.cmdOk.Cliquer();
    Ensuite([chemin] {
        auto& dialogue = dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
        dialogue.selectFile(EnQString(Joindre(chemin, u"La course des escargots.rtf")));
        QMetaObject::invokeMethod(&dialogue, "accept");
    });
    choix.cmdCharger.Cliquer();
    choix.lblIndex.Caption = u"2";
    EnregistrerNote(choix, 8); // there is a curve to draw
    application.état.GroupeCourbes = 1;
    choix.lblVitesse.Caption = u"100"; // the first exercise is done: all others are open
    éditeur.Charger();
    éditeur.rtfTexte.Text(u"Le chat dort. Le chien aboie.");
}

Noms Ecrans::Table() const
{
    Noms noms;
    for (const auto& [nom, rangée] : application.écrans)
        noms.emplace(nom);
    return noms;
}

std::unique_ptr<Ecran> Ecrans::Créer(const std::string& nom)
{
    for (Ecran* ouvreur : std::initializer_list<Ecran*>{&accueil, &éditeur, &choix}) {
        try {
            return application.écrans.find(nom)->second(*ouvreur);
        } catch (const std::bad_cast&) { // this one doesn't open it
        }
    }
    ADD_FAILURE() << nom << " : aucun ouvreur ne convient";
    return nullptr;
}

void Ecrans::Montrer(const std::string& nom, const std::function<void(Ecran&)>& script)
{
    const auto écran = Créer(nom);
    if (écran == nullptr)
        return;
    EXPECT_EQ(écran->Nom, nom);
    Avec(*écran, [&] {
        if (!écran->PetiteFenêtre)
            Devant().setGeometry(0, 0, 800, 600);
        Mettre();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        Mettre();
        script(*écran);
    });
    EXPECT_FALSE(écran->EstChargé());
    EXPECT_EQ(plateforme.Devant(), nullptr);
}

void Ecrans::SurChacun(const std::function<void(Ecran&)>& script)
{
    for (const auto& nom : Table()) {
        SCOPED_TRACE(nom);
        Montrer(nom, script);
    }
}

bool Ecrans::EstTouché(const QWidget& widget, QPoint lieu)
{
    const auto* touché = Devant().childAt(widget.mapTo(&Devant(), lieu));
    return touché == &widget || widget.isAncestorOf(touché);
}

} // namespace

TEST_F(Ecrans, ChaqueÉcranDesSourcesASaRangée)
{
    Noms écrits;
    for (const auto* dossierSource : {"followup", "authoring", "exercises"}) {
        for (const auto& entrée : std::filesystem::recursive_directory_iterator{Sources / dossierSource}) {
            const auto nom = entrée.path().stem().string();
            if (entrée.path().extension() == ".h" && nom.starts_with("frm"))
                écrits.insert(nom);
        }
    }
    EXPECT_FALSE(écrits.empty());
    EXPECT_EQ(Table(), écrits);
}

TEST_F(Ecrans, ToutCeQuiSeMontreASaPlaceDansLaFenêtre)
{
    SurChacun([&](Ecran& écran) {
        Noms sansVue;
        const auto vérifier = [&](const Elément& élément) {
            const auto* vue = Devant().VueDe(élément);
            if (vue == nullptr || vue->widget == nullptr || !vue->widget->isVisible())
                return;
            const auto place = Place(*vue->widget);
            EXPECT_TRUE(Devant().rect().contains(place) && !place.isEmpty())
                << élément.Nom << " : " << place.x() << ", " << place.y() << ", " << place.width() << " x "
                << place.height();
        };
        for (const auto* élément : écran.Eléments()) {
            vérifier(*élément);
            if (Devant().VueDe(*élément) == nullptr)
                sansVue.insert(SansIndex(*élément));
        }
        const auto réserves = Réserves.find(écran.Nom);
        EXPECT_EQ(sansVue, réserves == Réserves.end() ? Noms{} : réserves->second);
        // What covers the screen shows whole too.
        for (auto* couverture : écran.Couvertures()) {
            const bool montrée = couverture->Visible;
            couverture->Visible = true;
            Mettre();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            for (const auto* élément : écran.Eléments())
                vérifier(*élément);
            couverture->Visible = montrée;
        }
    });
}

TEST_F(Ecrans, CeQuiEstCachéLeReste)
{
    const auto vérifier = [&](const Ecran& écran) {
        QCoreApplication::processEvents(); // the toolkit shows late what has come into a window
        for (const auto* élément : écran.Eléments()) {
            const auto* vue = Devant().VueDe(*élément);
            if (vue != nullptr && vue->widget != nullptr && !élément->Visible) {
                EXPECT_FALSE(vue->widget->isVisible()) << élément->Nom;
            }
        }
    };
    SurChacun([&](Ecran& écran) { vérifier(écran); });
    frmTirelune premier{application};
    plateforme.MontrerFondDAbord();
    QTimer regard; // the background has a loop of its own
    regard.callOnTimeout([&] {
        if (Devant().VueDe(premier.Frame1) == nullptr)
            return;
        regard.stop();
        vérifier(premier);
        premier.Décharger();
    });
    regard.start(5);
    premier.Afficher();
}

TEST_F(Ecrans, LaTabulationFaitLeTour)
{
    SurChacun([&](Ecran& écran) {
        std::set<const QWidget*> arrêts;
        for (const auto* widget : Devant().findChildren<QWidget*>()) {
            const bool dansUneListe = widget->focusProxy() != nullptr;
            if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() && widget->isEnabled() &&
                !dansUneListe && !widget->objectName().startsWith(u"qt_"))
                arrêts.insert(widget);
        }
        ASSERT_FALSE(arrêts.empty());
        auto* départ = Devant().focusWidget();
        if (départ == nullptr) {
            QTest::keyClick(&Devant(), Qt::Key_Tab);
            départ = Devant().focusWidget();
        }
        ASSERT_NE(départ, nullptr);
        std::set<const QWidget*> vus;
        auto* ici = départ;
        do {
            vus.insert(ici);
            QTest::keyClick(ici, Qt::Key_Tab);
            ici = Devant().focusWidget();
            ASSERT_NE(ici, nullptr) << (*vus.begin())->objectName().toStdString();
        } while (ici != départ && !vus.contains(ici));
        EXPECT_EQ(ici, départ) << ici->objectName().toStdString();
        for (const auto* arrêt : arrêts)
            EXPECT_TRUE(vus.contains(arrêt)) << arrêt->objectName().toStdString();
        EXPECT_TRUE(écran.EstChargé());
    });
}

TEST_F(Ecrans, LaTabulationSuitLOrdreDuTravail)
{
    // What is pressed first comes first, round by round.
    const std::vector<std::pair<std::string, std::vector<std::string>>> ordres{
        {"frmPhotographier", {"cmdAfficher", "lblRéponse(0)", "lblRéponse(9)", "cmdQuitter"}},
        {"frmSérie", {"cmdVoir", "lblChoix(0)", "lblChoix(9)", "cmdContinuer"}},
        {"frmQuestionnaire1", {"cmdCommencer", "cmdOk", "chkRéponse(0)", "chkRéponse(4)", "cmdVérifier"}},
        {"frmPoursuite", {"cmdCommencer", "rtfPoursuite", "lblMot(0)", "lblMot(9)", "cmdContinuer"}},
        {"frmMotsEnDésordre", {"lblMot(0)", "txtPhrase", "cmdTerminé", "cmdSuivant"}},
        {"frmPendu", {"lblLettre(0)", "lblLettre(25)", "cmdSuivant"}},
    };
    for (const auto& [nom, ordre] : ordres) {
        SCOPED_TRACE(nom);
        Montrer(nom, [&, attendu = ordre](Ecran& /*écran*/) {
            std::vector<std::string> rencontrés;
            auto* premier = Devant().findChild<QWidget*>(EnQString(attendu.front()));
            ASSERT_NE(premier, nullptr);
            auto* ici = premier;
            do {
                const auto un = ici->objectName().toStdString();
                if (std::find(attendu.begin(), attendu.end(), un) != attendu.end())
                    rencontrés.push_back(un);
                ici = ici->nextInFocusChain();
            } while (ici != premier);
            EXPECT_EQ(rencontrés, attendu);
        });
    }
}

TEST_F(Ecrans, LaCroixFerme)
{
    SurChacun([&](Ecran& écran) {
        Devant().close();
        EXPECT_FALSE(écran.EstChargé());
    });
    // Alt+F4 comes from the window manager, to the window itself.
    SurChacun([&](Ecran& écran) {
        QCloseEvent fermeture;
        QCoreApplication::sendEvent(Devant().windowHandle(), &fermeture);
        EXPECT_FALSE(écran.EstChargé());
    });
}

TEST_F(Ecrans, FermerPendantUneAttenteLaFinit)
{
    SurChacun([&](Ecran& écran) {
        Ensuite([&] { Devant().close(); });
        EXPECT_FALSE(plateforme.Attendre(écran, 1h));
        EXPECT_FALSE(écran.EstChargé());
    });
}

TEST_F(Ecrans, FermerSousUneBoîteLEmporte)
{
    SurChacun([&](Ecran& écran) {
        Ensuite([&] {
            ASSERT_NE(QApplication::activeModalWidget(), nullptr);
            écran.FermerParCroix();
        });
        application.Avertir(u"Une boîte.");
        EXPECT_FALSE(écran.EstChargé());
    });
}

TEST_F(Ecrans, FermerPendantQueLaFenêtreSeRemplit)
{
    for (const auto& nom : Table()) {
        SCOPED_TRACE(nom);
        const auto écran = Créer(nom);
        ASSERT_NE(écran, nullptr);
        plateforme.MontrerFondDAbord();
        Ensuite([&] { Devant().close(); });
        écran->Afficher();
        EXPECT_FALSE(écran->EstChargé());
    }
}

namespace {

// What a click on an element sets off, and how it is given.
struct Clic {
    std::string Nom;
    std::function<void()> Donner;
};

} // namespace

class Clics : public Ecrans {
protected:
    // All clicks that the screen answers as it stands; each handler counts before it does its work.
    std::vector<Clic> Recenser(Ecran& écran);
    // Gives the click. Boxes are refused, screens above closed; a wait ends with its screen.
    void Jouer(Ecran& écran, const Clic& clic);

    int réponses = 0;

private:
    void Compter(std::function<void()>& gestionnaire)
    {
        gestionnaire = [this, vrai = gestionnaire] {
            ++réponses;
            vrai();
        };
    }
    void Presser(Elément& élément, std::vector<Clic>& clics);
};

void Clics::Presser(Elément& élément, std::vector<Clic>& clics)
{
    auto* vue = Devant().VueDe(élément);
    if (vue == nullptr || vue->widget == nullptr)
        return;
    auto* widget = vue->widget;
    const bool cadre = dynamic_cast<Frame*>(&élément) != nullptr;
    const auto lieu = cadre ? QPoint{widget->width() / 2, 3} : widget->rect().center();
    clics.push_back({élément.Nom, [this, widget, lieu] {
                         EXPECT_TRUE(EstTouché(*widget, lieu)) << widget->objectName().toStdString();
                         auto* touché = Devant().childAt(widget->mapTo(&Devant(), lieu));
                         QTest::mouseClick(touché, Qt::LeftButton, {},
                                           touché->mapFrom(&Devant(), widget->mapTo(&Devant(), lieu)));
                     }});
}

std::vector<Clic> Clics::Recenser(Ecran& écran)
{
    std::vector<Clic> clics;
    for (auto* élément : écran.Eléments()) {
        if (auto* option = dynamic_cast<MenuOption*>(élément)) {
            auto* action = Devant().findChild<QAction*>(EnQString(option->Nom));
            if (!option->Click || action == nullptr || !action->isEnabled() || !action->isVisible())
                continue;
            Compter(option->Click);
            clics.push_back({option->Nom, [action] { action->trigger(); }});
            continue;
        }
        if (!élément->EstAtteignable() || !élément->Enabled)
            continue;
        if (auto* légendé = dynamic_cast<Légendé*>(élément); légendé != nullptr && légendé->Click) {
            Compter(légendé->Click);
            Presser(*légendé, clics);
        } else if (auto* boîte = dynamic_cast<TextBox*>(élément); boîte != nullptr && boîte->Click) {
            Compter(boîte->Click);
            Presser(*boîte, clics);
        } else if (auto* texte = dynamic_cast<RichTextBox*>(élément); texte != nullptr && texte->Click) {
            Compter(texte->Click);
            Presser(*texte, clics);
        } else if (auto* barre = dynamic_cast<Toolbar*>(élément); barre != nullptr) {
            barre->ButtonClick = [this, vrai = barre->ButtonClick](std::string_view clé) {
                ++réponses;
                vrai(clé);
            };
            for (auto* bouton : Widget(*barre).findChildren<QToolButton*>())
                clics.push_back(
                    {bouton->objectName().toStdString(), [bouton] { QTest::mouseClick(bouton, Qt::LeftButton); }});
        }
    }
    return clics;
}

void Clics::Jouer(Ecran& écran, const Clic& clic)
{
    QTimer secours;
    QObject::connect(&secours, &QTimer::timeout, [&] {
        if (auto* dialogue = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            dialogue->reject();
        else if (&Devant().EcranDe() != &écran)
            Devant().EcranDe().Décharger();
        else
            écran.Décharger();
    });
    secours.start(0);
    réponses = 0;
    clic.Donner();
    EXPECT_EQ(réponses, 1);
}

TEST_F(Clics, ToutCeQuiSeCliqueRépond)
{
    for (const auto& nom : Table()) {
        SCOPED_TRACE(nom);
        std::vector<std::string> àCliquer;
        Montrer(nom, [&](Ecran& écran) {
            for (const auto& clic : Recenser(écran))
                àCliquer.push_back(clic.Nom);
        });
        EXPECT_FALSE(àCliquer.empty());
        for (const auto& cliqué : àCliquer) {
            SCOPED_TRACE(cliqué);
            Montrer(nom, [&](Ecran& écran) {
                for (const auto& clic : Recenser(écran)) { // a sentence drawn anew may have fewer words
                    if (clic.Nom == cliqué)
                        Jouer(écran, clic);
                }
            });
        }
    }
}

namespace {

// Counts a widget's paintings.
class Témoin : public QObject {
public:
    explicit Témoin(QWidget& widget) { widget.installEventFilter(this); }

    int peintures = 0;

    bool eventFilter(QObject* /*vu*/, QEvent* événement) override
    {
        peintures += événement->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace

TEST_F(Ecrans, LeCadreDeLaCorrectionSeVoitTantQuElleDure)
{
    Avec(éditeur, [&] {
        application.état.NomFichierTexte = Joindre(application.état.CheminAppli, u"Le chat.rtf");
        Témoin témoin{Widget(éditeur.frameCorrection)};
        int avantLaCorrection = 0;
        const auto changer = éditeur.rtfTexte.Change;
        for (int fois = 1; fois <= 2; ++fois) { // the frame has its place before it comes a second time
            éditeur.rtfTexte.Text(u"Le  chat dort.");
            QCoreApplication::processEvents();
            témoin.peintures = 0;
            éditeur.rtfTexte.Change = [&] {
                avantLaCorrection = témoin.peintures;
                changer();
            };
            QTest::keyClick(&Widget(éditeur.rtfTexte), Qt::Key_S, Qt::ControlModifier);
            éditeur.rtfTexte.Change = changer;
            EXPECT_EQ(éditeur.rtfTexte.Text(), u"Le chat dort. ");
            EXPECT_EQ(avantLaCorrection, 1) << fois;
        }
    });
}

} // namespace tirelune
