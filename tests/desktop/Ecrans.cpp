// What holds for every screen: its place, its order of Tab, its closing, its clicks.
#include "tests/desktop/Clics.h"

#include <QCloseEvent>
#include <QTextEdit>
#include <QWindow>

#include <filesystem>
#include <map>

namespace tirelune {

using namespace std::chrono_literals;

namespace {

const std::filesystem::path Sources{DOSSIER_SOURCES};

// What no screen shows: lists, tables and marks that rules work with. All the rest must have its place.
const std::map<std::string, Noms> Réserves{
    {"frmAbsent", {"lblChronoRéf"}},
    {"frmAlphabet", {"cmbMots", "lblPassage"}},
    {"frmEcrireMot", {"cmbMots", "lblMot", "lblRéf"}},
    {"frmContraires", {"cmbNuméro", "fgContraires"}},
    {"frmDico", {"fgDic", "fgDicoPrinc"}},
    {"frmEcrirePhrase", {"cmbOrdre", "lblPassage", "txtCorrigé"}},
    {"frmEnseignant", {"rtfSauve"}},
    {"frmExercices", {"cmbVocabulaire", "fgRésultats", "lblIndex", "listeBil", "rtfTexte"}},
    {"frmGenre", {"cmbNuméro", "fgGenre"}},
    {"frmGestionEleves", {"listeBil"}},
    {"frmLexique", {"fgContraires", "fgDic", "fgDicPrinc", "fgFamilles", "fgGenre", "fgSynonymes"}},
    {"frmLignesEnDésordre", {"cmbMélangées", "cmbOrdre", "lblPassage", "txtPhrase"}},
    {"frmMotsCoupés", {"cmbEliminés", "cmbMots", "lblPassage"}},
    {"frmJeCorrige", {"lblGraphèmes", "lblSon"}},
    {"frmMotsEnDésordre", {"cmbMots", "cmbOrdre", "lblBanque", "lblCorrigé", "lblPassage"}},
    {"frmMotsInversés",
     {"cmbMots", "cmbOrdre", "lblBanque", "lblCorrigé", "lblMot", "lblNombreMots", "rtfInversion", "rtfPassage"}},
    {"frmPendu", {"cmbMots", "imgRéf", "lblRéf"}},
    {"frmPhrasesEnDésordre", {"cmbMélangées", "cmbOrdre", "lblPassage"}},
    {"frmPoursuite", {"lblCorrigé", "lblPassage"}},
    {"frmQuestionnaire1", {"fgQuestions"}},
    {"frmQuestions", {"fgQuestions"}},
    {"frmSérie", {"lblCompteur"}},
    {"frmSynonymes", {"cmbNuméro", "fgSynonymes"}},
    {"frmThèmes", {"cmbNuméro", "fgThèmes"}},
    {"frmThèmes2", {"cmbNuméros", "fgThèmes"}},
    {"frmTrouveMoi", {"lblTempsRéf"}},
};

// "lblMot" for "lblMot(3)".
std::string SansIndex(const Elément& élément)
{
    return élément.Nom.substr(0, élément.Nom.find('('));
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
        if (départ == &Devant()) { // nothing has the keyboard yet
            QTest::keyClick(&Devant(), Qt::Key_Tab);
            départ = Devant().focusWidget();
        }
        ASSERT_NE(départ, nullptr);
        std::set<const QWidget*> vus;
        auto* ici = départ;
        do {
            vus.insert(ici);
            const auto* texte = qobject_cast<const QTextEdit*>(ici);
            const bool écrite = texte != nullptr && !texte->tabChangesFocus(); // Tab is one of its letters
            QTest::keyClick(ici, Qt::Key_Tab, écrite ? Qt::ControlModifier : Qt::NoModifier);
            ici = Devant().focusWidget();
            ASSERT_NE(ici, &Devant()) << (*vus.begin())->objectName().toStdString();
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
        {"frmAbsent", {"lblMot(0)", "lblMot(9)", "cmdQuitter"}},
        {"frmTrouveMoi", {"rtfRéponse", "cmdSuivant"}},
        {"frmEcrirePhrase", {"rtfPhrase", "cmdErreur", "cmdCommencer"}},
        {"frmJeCorrige", {"rtfCorrige", "txtMot", "cmdOk"}},
        {"frmAlphabet", {"rtfMot(0)", "rtfMot(9)", "cmdQuitter"}},
        {"frmMotsCoupés", {"lblMotFin(0)", "lblMotFin(9)", "lblMotDébut(0)", "lblMotDébut(9)", "cmdQuitter"}},
        {"frmEcrireMot", {"txtRéponse", "cmdOk", "cmdCommencer"}},
        {"frmMotsInversés", {"rtfPhrase", "cmdTerminé", "cmdOk", "cmdAnnuler", "cmdSuivant"}},
        {"frmLignesEnDésordre", {"lblLigne(0)", "lblLigne(9)", "cmdQuitter"}},
        {"frmPhrasesEnDésordre", {"lblPhrase(0)", "lblPhrase(5)", "cmdQuitter"}},
        {"frmTronqué", {"lblMot1(0)", "lblMot1(9)", "lblMot2(0)", "lblMot2(9)", "cmdQuitter"}},
        {"frmPendu", {"lblLettre(0)", "lblLettre(25)", "cmdSuivant"}},
        {"frmQuestions", {"txtQuestion", "txtChoix(0)", "txtChoix(4)", "chkRéponse(0)", "cmdSuivante", "cmdQuitter"}},
        {"frmLexique",
         {"txtMot(0)", "txtMot(9)", "txtMot(10)", "txtDéfinition", "txtExemple", "cmdAttacher", "cmdModifier(0)"}},
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

TEST_F(Clics, ToutCeQuiSeCliqueRépond)
{
    SurChaqueClic([&](Ecran& écran, const Clic& clic) {
        QTimer secours;
        QObject::connect(&secours, &QTimer::timeout, [&] { Sortir(écran); });
        secours.start(0);
        clic.Donner();
        EXPECT_EQ(réponses, 1);
    });
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
