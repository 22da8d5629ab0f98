// What hands do without meaning it, on every screen: keys held down, double clicks, small drags.
#include "core/Collage.h"
#include "desktop/Dialogues.h"
#include "followup/frmGestionEleves.h"
#include "tests/desktop/Clics.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QFile>
#include <QFocusFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QScrollBar>
#include <QTextEdit>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <optional>
#include <tuple>

namespace tirelune {

namespace {

void Enfoncer(QWidget& widget, int touche, bool répétée = false, const QString& texte = {})
{
    QTest::simulateEvent(&widget, true, touche, Qt::NoModifier, texte, répétée);
}

void Relâcher(QWidget& widget, int touche)
{
    QTest::simulateEvent(&widget, false, touche, Qt::NoModifier, {}, false);
}

// The window in front, be it a box.
QWidget& EnAvant()
{
    auto* boîte = QApplication::activeModalWidget();
    return boîte != nullptr ? *boîte : *QApplication::activeWindow();
}

QWidget& AuClavier()
{
    auto& fenêtre = EnAvant();
    return fenêtre.focusWidget() != nullptr ? *fenêtre.focusWidget() : fenêtre;
}

QString Légende(const QWidget* widget)
{
    if (const auto* bouton = qobject_cast<const QAbstractButton*>(widget))
        return bouton->text();
    const auto* étiquette = qobject_cast<const QLabel*>(widget);
    return étiquette != nullptr ? étiquette->text() : QString{};
}

void EnvoyerSouris(QWidget& widget, QEvent::Type type, QPoint lieu)
{
    const auto bouton = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const auto tenus = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent événement{type, QPointF{lieu}, widget.mapToGlobal(QPointF{lieu}), bouton, tenus, Qt::NoModifier};
    QCoreApplication::sendEvent(&widget, &événement);
}

// What lies at the point of the display in the window in front.
QWidget& SousLePointeur(QPoint global)
{
    auto& fenêtre = EnAvant();
    auto* dessous = fenêtre.childAt(fenêtre.mapFromGlobal(global));
    return dessous != nullptr ? *dessous : fenêtre;
}

void SecondClic(QPoint global)
{
    auto& touché = SousLePointeur(global);
    const QPointer<QWidget> encore{&touché};
    EnvoyerSouris(touché, QEvent::MouseButtonDblClick, touché.mapFromGlobal(global));
    if (encore != nullptr)
        EnvoyerSouris(*encore, QEvent::MouseButtonRelease, encore->mapFromGlobal(global));
}

class EcranMains : public EcranEssai {
public:
    using EcranEssai::EcranEssai;

    Button cmdSuite{*this, "cmdSuite", u"&Suite"};
    Button cmdAutre{*this, "cmdAutre", u"&Autre"};
    TextBox txtNom{*this, "txtNom"};
    TextBox txtNotes{*this, "txtNotes", {.MultiLine = true}};
    TextBox txtChoix{*this, "txtChoix", {.Caption = u"Le chat dort sous la table.", .MultiLine = true}};
    TextBox txtLigne{*this, "txtLigne", {.Caption = u"Le chat dort."}};
    Frame frameFin{*this, "frameFin", {.Caption = u"Fini", .Visible = false}};
    Button cmdQuitter{*this, "cmdQuitter", u"&Quitter"};

    Arrangement Disposer() override
    {
        return Colonne{Ligne{cmdSuite, cmdAutre},         txtNom, txtNotes, txtChoix, txtLigne,
                       Cadre{frameFin, Ligne{cmdQuitter}}};
    }
};

class EcranTextes : public EcranEssai {
public:
    using EcranEssai::EcranEssai;

    RichTextBox rtfLu{*this, "rtfLu"};
    TextBox txtLu{*this, "txtLu", {.MultiLine = true}};

    Arrangement Disposer() override { return Colonne{rtfLu, txtLu}; }
};

class EcranListe : public EcranEssai {
public:
    using EcranEssai::EcranEssai;

    RichTextBox rtfTrous{*this, "rtfTrous"};
    ComboBox cmbMots{*this, "cmbMots"};

    Arrangement Disposer() override { return Colonne{rtfTrous, Ligne{cmbMots, Ressort{}}}; }
};

class Mains : public Clics {
protected:
    static constexpr int Longtemps = 20; // repeats, or turns of the loop

    // Holds a key on the widget; what comes up meanwhile gets its repeats, and stays. Then the screen is left.
    void Tenir(Ecran& écran, QWidget& widget, int touche);
    void CliquerDeuxFois(Ecran& écran, const Clic& clic);

    EcranMains banc{application};
};

void Mains::Tenir(Ecran& écran, QWidget& widget, int touche)
{
    int tours = 0;
    QPointer<QWidget> venue;
    QTimer relève;
    QObject::connect(&relève, &QTimer::timeout, [&] {
        if (venue == nullptr)
            venue = &EnAvant();
        EXPECT_EQ(venue.data(), &EnAvant()) << "une touche tenue a répondu";
        if (++tours <= Longtemps)
            Enfoncer(AuClavier(), touche, true);
        else
            Sortir(écran);
    });
    relève.start(0);
    Enfoncer(widget, touche);
    while (écran.EstChargé())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Mains::CliquerDeuxFois(Ecran& écran, const Clic& clic)
{
    auto* touché = Devant().childAt(clic.Widget->mapTo(&Devant(), clic.Lieu));
    const auto global = clic.Widget->mapToGlobal(clic.Lieu);
    const auto légende = Légende(touché);
    int tours = 0;
    bool changé = true;
    const QWidget* venue = nullptr;
    QTimer relève;
    QObject::connect(&relève, &QTimer::timeout, [&] {
        if (++tours == 1) {
            venue = &EnAvant();
            SecondClic(global);
            return;
        }
        EXPECT_TRUE(!changé || venue == &EnAvant()) << "un second clic a répondu";
        changé = false;
        Sortir(écran);
    });
    relève.start(0);
    clic.Donner();
    ASSERT_EQ(réponses, 1);
    if (tours > 0 || !écran.EstChargé())
        return; // the second click has come upon something else
    Mettre();
    changé = &SousLePointeur(global) != touché || Légende(touché) != légende;
    venue = &EnAvant();
    tours = 1;
    SecondClic(global);
    EXPECT_LE(réponses, changé ? 1 : 2);
}

} // namespace

// ---- Held keys -------------------------------------------------------------------------------------------------

TEST_F(Mains, UneToucheTenueNePresseQuUneFois)
{
    SurChaqueClic([&](Ecran& écran, const Clic& clic) {
        if (clic.Widget == nullptr || (clic.Widget->focusPolicy() & Qt::TabFocus) == 0)
            return;
        clic.Widget->setFocus(Qt::TabFocusReason);
        Tenir(écran, *clic.Widget, Qt::Key_Return);
        EXPECT_LE(réponses, 1);
    });
}

TEST_F(Mains, EntréeTenueNeSupprimePersonne)
{
    Montrer("frmGestionEleves", [&](Ecran& écran) {
        auto& gestion = dynamic_cast<frmGestionEleves&>(écran);
        application.état.CodeValide = true;
        auto& bouton = Widget(gestion.cmdSupprimer);
        bouton.setFocus(Qt::TabFocusReason);
        Ensuite(
            [] { EXPECT_EQ(dynamic_cast<QMessageBox&>(EnAvant()).informativeText(), QStringLiteral("Elève : Léa")); });
        Tenir(écran, bouton, Qt::Key_Return);
    });
    EXPECT_TRUE(QFile::exists(dossier.filePath("Léa.bil")));
}

TEST_F(Mains, UneLettreTenueNeComptePasPourPlusieurs)
{
    Montrer("frmPendu", [&](Ecran& écran) {
        int touches = 0;
        Devant().Synchroniser();
        for (auto* élément : écran.Eléments()) {
            auto* lettre = dynamic_cast<Label*>(élément);
            if (lettre == nullptr || !lettre->Nom.starts_with("lblLettre"))
                continue;
            lettre->Click = [&touches] { ++touches; };
        }
        Enfoncer(AuClavier(), Qt::Key_Z, false, QStringLiteral("z"));
        for (int i = 0; i < Longtemps; ++i)
            Enfoncer(AuClavier(), Qt::Key_Z, true, QStringLiteral("z"));
        EXPECT_EQ(touches, 1);
    });
}

TEST_F(Mains, DansUnChampUneLettreTenueSeRépète)
{
    Avec(banc, [&] {
        for (TextBox* champ : {&banc.txtNom, &banc.txtNotes}) {
            auto& widget = Widget(*champ);
            widget.setFocus();
            Enfoncer(widget, Qt::Key_A, false, QStringLiteral("a"));
            for (int i = 0; i < 4; ++i)
                Enfoncer(widget, Qt::Key_A, true, QStringLiteral("a"));
            EXPECT_EQ(champ->Text, u"aaaaa");
            for (int i = 0; i < 4; ++i)
                Enfoncer(widget, Qt::Key_Backspace, i > 0);
            EXPECT_EQ(champ->Text, u"a");
            Relâcher(widget, Qt::Key_Backspace);
            Relâcher(widget, Qt::Key_A);
        }
    });
}

TEST_F(Mains, EntréeTenueDansUnChampNeConfirmeQuUneFois)
{
    int confirmés = 0;
    banc.txtNom.Enter = [&] { ++confirmés; };
    Avec(banc, [&] {
        auto& champ = Widget(banc.txtNom);
        champ.setFocus();
        Enfoncer(champ, Qt::Key_Return);
        for (int i = 0; i < Longtemps; ++i)
            Enfoncer(champ, Qt::Key_Return, true);
        EXPECT_EQ(confirmés, 1);
    });
}

TEST_F(Mains, UneToucheTenueNÉcritPasDansLÉcranQuiVient)
{
    EcranMains dessus{application};
    banc.cmdSuite.Click = [&] {
        Ensuite([&] {
            auto& champ = Widget(dessus.txtNom);
            champ.setFocus();
            Enfoncer(champ, Qt::Key_Space, true, QStringLiteral(" "));
            EXPECT_EQ(dessus.txtNom.Text, u"");
            Relâcher(champ, Qt::Key_Space);
            Enfoncer(champ, Qt::Key_Space, false, QStringLiteral(" ")); // let go, it writes again
            Enfoncer(champ, Qt::Key_Space, true, QStringLiteral(" "));
            EXPECT_EQ(dessus.txtNom.Text, u"  ");
            dessus.Décharger();
        });
        dessus.Afficher();
    };
    Avec(banc, [&] {
        Widget(banc.cmdSuite).setFocus();
        Enfoncer(Widget(banc.cmdSuite), Qt::Key_Space, false, QStringLiteral(" "));
        Relâcher(Widget(banc.cmdSuite), Qt::Key_Return);
        banc.cmdSuite.Cliquer();
    });
}

TEST_F(Mains, UneToucheTenueNeParcourtPasLeCadreQuiVient)
{
    banc.cmdSuite.Click = [&] { banc.frameFin.Visible = true; };
    Avec(banc, [&] {
        auto& champ = Widget(banc.txtNom);
        champ.setFocus();
        Enfoncer(champ, Qt::Key_A, false, QStringLiteral("a"));
        banc.cmdSuite.Cliquer();
        Mettre();
        Enfoncer(champ, Qt::Key_A, true, QStringLiteral("a"));
        EXPECT_EQ(banc.txtNom.Text, u"a");
    });
}

TEST_F(Mains, UnRaccourciTenuNeSertQuUneFois)
{
    int pressions = 0;
    banc.cmdSuite.Click = [&] { ++pressions; };
    Avec(banc, [&] {
        auto& champ = Widget(banc.txtNom);
        champ.setFocus();
        QTest::simulateEvent(&champ, true, Qt::Key_S, Qt::AltModifier, QStringLiteral("s"), false);
        EXPECT_TRUE(QTest::qWaitFor([&] { return pressions == 1; })); // the button goes down and up by itself
        QTest::simulateEvent(&champ, true, Qt::Key_S, Qt::AltModifier, QStringLiteral("s"), true);
        EXPECT_FALSE(Widget<QAbstractButton>(banc.cmdSuite).isDown());
    });
}

// ---- Double clicks ---------------------------------------------------------------------------------------------

TEST_F(Mains, UnSecondClicNePressePasCeQuiVientDeChanger)
{
    SurChaqueClic([&](Ecran& écran, const Clic& clic) {
        if (clic.Widget != nullptr)
            CliquerDeuxFois(écran, clic);
    });
}

TEST_F(Mains, VérifierPuisSuivanteVeutDeuxClicsPosés)
{
    int pressions = 0;
    banc.cmdSuite.Click = [&] {
        ++pressions;
        banc.cmdSuite.Caption = pressions % 2 != 0 ? u"Autre chose" : u"&Suite";
    };
    Avec(banc, [&] {
        auto& bouton = Widget(banc.cmdSuite);
        DoubleCliquer(bouton, bouton.rect().center());
        EXPECT_EQ(pressions, 1);
        Cliquer(banc.cmdSuite); // later: meant
        EXPECT_EQ(pressions, 2);
        // The third of a quick run comes as a plain press.
        const auto lieu = bouton.rect().center();
        const auto presser = [&](ulong moment) {
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent événement{type,           QPointF{lieu},  bouton.mapToGlobal(QPointF{lieu}),
                                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier};
                événement.setTimestamp(moment);
                QCoreApplication::sendEvent(&bouton, &événement);
            }
        };
        const ulong début = 1'000'000;
        for (const ulong moment : {début, début + 150, début + 300})
            presser(moment);
        EXPECT_EQ(pressions, 3);
        presser(début + 2000);
        EXPECT_EQ(pressions, 4);
    });
}

TEST_F(Mains, UnBoutonInchangéPrendLesDeuxClics)
{
    int pressions = 0;
    banc.cmdSuite.Click = [&] { ++pressions; };
    Avec(banc, [&] {
        auto& bouton = Widget(banc.cmdSuite);
        DoubleCliquer(bouton, bouton.rect().center());
        EXPECT_EQ(pressions, 2);
    });
}

TEST_F(Mains, UnBoutonQuiVientSousLePointeurNePrendPasLeSecondClic)
{
    int pressions = 0;
    banc.cmdAutre.Visible = false;
    banc.cmdAutre.Click = [&] { ++pressions; };
    Avec(banc, [&] {
        auto& bouton = Widget(banc.cmdAutre);
        const auto global = bouton.mapToGlobal(bouton.rect().center());
        QTest::mouseClick(&Devant(), Qt::LeftButton, {}, Devant().mapFromGlobal(global));
        banc.cmdAutre.Visible = true;
        Mettre();
        SecondClic(global);
        EXPECT_EQ(pressions, 0);
    });
}

TEST_F(Mains, UnBoutonDeSourisTenuNeFaitRienDansCeQuiVient)
{
    int pressions = 0;
    banc.cmdQuitter.Click = [&] { ++pressions; };
    banc.txtLigne.Click = [&] { ++pressions; };
    banc.txtLigne.Locked = true;
    banc.txtLigne.Visible = false;
    Avec(banc, [&] {
        const auto venirSous = [&](Elément& venu, const Elément& visé) {
            auto& cible = Widget(visé);
            const auto global = cible.mapToGlobal(cible.rect().center());
            EnvoyerSouris(Devant(), QEvent::MouseButtonPress, Devant().mapFromGlobal(global));
            venu.Visible = true;
            Mettre();
            auto& touché = SousLePointeur(global);
            EnvoyerSouris(touché, QEvent::MouseMove, touché.mapFromGlobal(global) + QPoint{2, 0});
            EnvoyerSouris(touché, QEvent::MouseButtonRelease, touché.mapFromGlobal(global));
        };
        venirSous(banc.frameFin, banc.cmdQuitter);
        venirSous(banc.txtLigne, banc.txtLigne);
        EXPECT_EQ(pressions, 0);
    });
}

TEST_F(Mains, RelâcherDansUneBoîteNYRépondPas)
{
    banc.cmdSuite.Click = [&] {
        Ensuite([] {
            const QPointer<QWidget> boîte{&EnAvant()};
            for (const auto touche : {Qt::Key_Space, Qt::Key_Return})
                Relâcher(AuClavier(), touche);
            EXPECT_TRUE(boîte->isVisible());
            dynamic_cast<QDialog&>(*boîte).reject();
        });
        EXPECT_FALSE(application.Demander(u"Encore ?"));
    };
    Avec(banc, [&] {
        Widget(banc.cmdSuite).setFocus();
        Enfoncer(Widget(banc.cmdSuite), Qt::Key_Return);
    });
}

TEST_F(Mains, UnChampQuiTrieSesTouchesNeSeRemplitPasÀLaSouris)
{
    banc.txtNom.KeyPress = [](Touche& touche) { touche.Avaler(); };
    Avec(banc, [&] {
        auto& champ = Widget<QLineEdit>(banc.txtNom);
        Ensuite([] { EXPECT_EQ(QApplication::activePopupWidget(), nullptr); });
        QContextMenuEvent menu{QContextMenuEvent::Mouse, {5, 5}, champ.mapToGlobal(QPoint{5, 5})};
        QCoreApplication::sendEvent(&champ, &menu);
        QCoreApplication::processEvents();
        QApplication::clipboard()->setText(QStringLiteral("123"));
        for (const auto avec : {Qt::Key_V, Qt::Key_Insert})
            QTest::keyClick(&champ, avec, avec == Qt::Key_V ? Qt::ControlModifier : Qt::ShiftModifier);
        QTest::mouseClick(&champ, Qt::MiddleButton);
        EXPECT_EQ(banc.txtNom.Text, u"");
    });
}

// ---- Small drags -----------------------------------------------------------------------------------------------

TEST_F(Mains, UnClicQuiGlisseUnPeuEstUnClic)
{
    SurChaqueClic([&](Ecran& écran, const Clic& clic) {
        if (clic.Widget == nullptr)
            return;
        QTimer secours;
        QObject::connect(&secours, &QTimer::timeout, [&] { Sortir(écran); });
        secours.start(0);
        auto& touché = SousLePointeur(clic.Widget->mapToGlobal(clic.Lieu));
        const auto lieu = touché.mapFrom(clic.Widget, clic.Lieu);
        EnvoyerSouris(touché, QEvent::MouseButtonPress, lieu);
        EnvoyerSouris(touché, QEvent::MouseMove, lieu + QPoint{2, 1});
        EnvoyerSouris(touché, QEvent::MouseMove, lieu + QPoint{4, 1});
        EnvoyerSouris(touché, QEvent::MouseButtonRelease, lieu + QPoint{4, 1});
        EXPECT_EQ(réponses, 1);
    });
}

TEST_F(Mains, UnTexteVerrouilléSeCliqueOùLeBoutonDescend)
{
    std::vector<std::size_t> places;
    for (TextBox* boîte : {&banc.txtChoix, &banc.txtLigne}) {
        boîte->Locked = true;
        boîte->Click = [&places, boîte] { places.push_back(boîte->SelStart); };
    }
    Avec(banc, [&] {
        for (const TextBox* boîte : {&banc.txtChoix, &banc.txtLigne}) {
            auto& widget = Widget(*boîte);
            auto* touché = widget.childAt(30, 12) != nullptr ? widget.childAt(30, 12) : &widget;
            const auto glisser = [&](int pixels) {
                EnvoyerSouris(*touché, QEvent::MouseButtonPress, {30, 12});
                EnvoyerSouris(*touché, QEvent::MouseMove, {30 + pixels, 12});
                EnvoyerSouris(*touché, QEvent::MouseButtonRelease, {30 + pixels, 12});
            };
            places.clear();
            for (const int pixels : {0, 4, 60, 4, 0})
                glisser(pixels);
            ASSERT_EQ(places.size(), 5U) << boîte->Nom;
            EXPECT_EQ(std::count(places.begin(), places.end(), places.front()), 5) << boîte->Nom;
            EXPECT_GT(places.front(), 0U);
            EXPECT_EQ(boîte->SelLength(), 0U);
            // The button came down elsewhere.
            EnvoyerSouris(*touché, QEvent::MouseButtonRelease, {30, 12});
            EXPECT_EQ(places.size(), 5U);
        }
    });
}

// ---- The keyboard's place --------------------------------------------------------------------------------------

TEST_F(Mains, LeClavierNeVientQueLàOùLÉcranLeDemande)
{
    const auto vérifier = [&](const Ecran& écran) {
        const auto* ici = Devant().focusWidget();
        ASSERT_NE(ici, nullptr);
        if (ici == &Devant() || qobject_cast<const QLineEdit*>(ici) != nullptr)
            return;
        const auto* vue = Devant().VueDuWidget(ici);
        ASSERT_NE(vue, nullptr);
        EXPECT_EQ(&vue->élément, écran.Focus()) << vue->élément.Nom;
    };
    SurChacun([&](Ecran& écran) {
        QApplication::setActiveWindow(nullptr);
        QApplication::setActiveWindow(&Devant()); // the toolkit likes to give it to somebody then
        vérifier(écran);
        // What has it goes: it goes nowhere.
        for (auto* élément : écran.Eléments()) {
            const auto* vue = Devant().VueDe(*élément);
            if (vue == nullptr || vue->widget == nullptr || (vue->widget->focusPolicy() & Qt::TabFocus) == 0 ||
                !vue->widget->isVisible() || !vue->widget->isEnabled())
                continue;
            for (Propriété<bool>* propriété : {&élément->Visible, &élément->Enabled}) {
                vue->widget->setFocus(Qt::TabFocusReason);
                *propriété = false;
                Mettre();
                EXPECT_EQ(Devant().focusWidget(), &Devant()) << élément->Nom;
                *propriété = true;
                Mettre();
            }
        }
    });
}

TEST_F(Mains, TabRepartDOùLeClavierÉtait)
{
    Avec(banc, [&] {
        Widget(banc.txtNom).setFocus();
        banc.txtNom.Visible = false;
        Mettre();
        EXPECT_EQ(Devant().focusWidget(), &Devant());
        QTest::keyClick(&Devant(), Qt::Key_Tab);
        EXPECT_EQ(Devant().focusWidget(), &Widget(banc.txtNotes));
        banc.txtNotes.Enabled = false;
        Mettre();
        QTest::keyClick(&Devant(), Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(Devant().focusWidget(), &Widget(banc.cmdAutre));
    });
}

TEST_F(Mains, UnCadreQuiPartOuQuiCouvreNeDonnePasLeClavier)
{
    int pressions = 0;
    banc.cmdSuite.Click = [&] { ++pressions; };
    banc.cmdAutre.Click = [&] { ++pressions; };
    banc.frameFin.Visible = true;
    Avec(banc, [&] {
        Widget(banc.cmdQuitter).setFocus(Qt::TabFocusReason);
        banc.frameFin.Visible = false;
        Mettre();
        EXPECT_EQ(Devant().focusWidget(), &Devant());
        for (const auto touche : {Qt::Key_Return, Qt::Key_Space})
            QTest::keyClick(&Devant(), touche);
        EXPECT_EQ(pressions, 0);
    });
}

TEST_F(Mains, LAnneauNeVientQuAvecUneTouche)
{
    SurChacun([&](Ecran& /*écran*/) {
        const auto cadre = [&] { return Devant().findChild<QFocusFrame*>(); };
        QTest::mouseClick(&Devant(), Qt::LeftButton, {}, {1, Devant().height() - 1});
        EXPECT_TRUE(cadre() == nullptr || !cadre()->isVisible());
        std::set<const QWidget*> vus;
        for (auto* ici = Devant().focusWidget();; ici = Devant().focusWidget()) {
            QTest::keyClick(ici, Qt::Key_Tab, ici->objectName() == "rtfTexte" ? Qt::ControlModifier : Qt::NoModifier);
            const auto* là = Devant().focusWidget();
            ASSERT_NE(là, &Devant());
            if (!vus.insert(là).second)
                break;
            ASSERT_NE(cadre(), nullptr);
            EXPECT_TRUE(cadre()->isVisible()) << là->objectName().toStdString();
            EXPECT_TRUE(cadre()->widget() == là || cadre()->widget() == là->parentWidget());
            const QRect autour{cadre()->mapToGlobal(QPoint{0, 0}), cadre()->size()};
            EXPECT_TRUE(autour.contains(QRect{là->mapToGlobal(QPoint{0, 0}), là->size()}))
                << là->objectName().toStdString();
        }
        EXPECT_FALSE(vus.empty());
        QTest::mouseClick(&Devant(), Qt::LeftButton, {}, {1, Devant().height() - 1});
        EXPECT_TRUE(cadre() == nullptr || !cadre()->isVisible());
    });
}

TEST_F(Mains, UnÉcranResteAuDessusDeCeluiQuiLAOuvert)
{
    EcranMains dessus{application};
    Avec(banc, [&] {
        auto* dessous = &Devant();
        Ensuite([&] {
            EXPECT_NE(&Devant(), dessous);
            EXPECT_EQ(Devant().windowHandle()->transientParent(), dessous->windowHandle());
            dessus.Décharger();
        });
        dessus.Afficher();
        dessus.PetiteFenêtre = true;
        Ensuite([&] {
            EXPECT_EQ(Devant().windowHandle()->transientParent(), dessous->windowHandle());
            dessus.Décharger();
        });
        dessus.Afficher();
    });
}

// ---- Texts to read -----------------------------------------------------------------------------------------------

TEST_F(Mains, LesTouchesFontDéfilerCeQuiSeLit)
{
    Texte long_;
    for (int i = 0; i < 200; ++i)
        long_ += u"Une ligne à lire.\r\n";
    const auto parcourir = [&](QAbstractScrollArea& zone, QWidget& clavier) {
        auto* barre = zone.verticalScrollBar();
        ASSERT_GT(barre->maximum(), 0);
        barre->setValue(0);
        int avant = 0;
        for (const auto touche : {Qt::Key_PageDown, Qt::Key_Down, Qt::Key_End}) {
            for (int i = 0; i < 2 && avant != barre->maximum(); ++i)
                QTest::keyClick(&clavier, touche);
            EXPECT_GT(barre->value(), avant) << touche;
            avant = barre->value();
        }
        for (const auto touche : {Qt::Key_PageUp, Qt::Key_Up, Qt::Key_Home}) {
            for (int i = 0; i < 2; ++i)
                QTest::keyClick(&clavier, touche);
            EXPECT_LT(barre->value(), avant) << touche;
            avant = barre->value();
        }
        EXPECT_EQ(barre->value(), 0);
        QWheelEvent molette{QPointF{30, 30},
                            zone.viewport()->mapToGlobal(QPointF{30, 30}),
                            {},
                            {0, -120},
                            Qt::NoButton,
                            Qt::NoModifier,
                            Qt::NoScrollPhase,
                            false};
        QCoreApplication::sendEvent(zone.viewport(), &molette);
        EXPECT_GT(barre->value(), 0);
    };
    EcranTextes textes{application};
    textes.rtfLu.Locked = true;
    textes.rtfLu.Text(long_);
    textes.txtLu.Locked = true;
    textes.txtLu.Text = long_;
    Avec(textes, [&] {
        auto& riche = Widget<QAbstractScrollArea>(textes.rtfLu);
        auto& simple = Widget<QAbstractScrollArea>(textes.txtLu);
        riche.setFocus();
        parcourir(riche, riche);
        simple.setFocus();
        parcourir(simple, simple);
        // A text that answers clicks takes the arrows for its characters, and shows them.
        textes.rtfLu.Click = [] {};
        riche.setFocus();
        auto* barre = riche.verticalScrollBar();
        barre->setValue(0);
        QTest::keyClick(&riche, Qt::Key_PageDown);
        EXPECT_GT(barre->value(), 0);
        QTest::keyClick(&riche, Qt::Key_End);
        EXPECT_EQ(barre->value(), barre->maximum());
        QTest::keyClick(&riche, Qt::Key_Home);
        EXPECT_EQ(barre->value(), 0);
        // With the keyboard nowhere, what is to be read moves all the same.
        textes.rtfLu.Enabled = false;
        Mettre();
        ASSERT_EQ(Devant().focusWidget(), &Devant());
        parcourir(simple, Devant());
    });
}

// ---- The editor --------------------------------------------------------------------------------------------------

TEST_F(Mains, DansLÉditeurLesTouchesFontCeQueFontLesMenus)
{
    Montrer("frmEnseignant", [&](Ecran& écran) {
        auto& e = dynamic_cast<frmEnseignant&>(écran);
        auto& page = Widget<QTextEdit>(e.rtfTexte);
        page.setFocus();
        QTest::keyClicks(&page, "ab");
        QTest::keyClick(&page, Qt::Key_Tab);
        QTest::keyClicks(&page, "c");
        EXPECT_EQ(e.rtfTexte.Text(), u"ab\tc");
        EXPECT_EQ(Devant().focusWidget(), &page);

        // Each goes through the option of the menu, once.
        int couper = 0;
        int copier = 0;
        int coller = 0;
        const auto compter = [](std::function<void()>& clic, int& fois) {
            clic = [&fois, vrai = clic] {
                ++fois;
                vrai();
            };
        };
        compter(e.mnuCouper.Click, couper);
        compter(e.mnuCopier.Click, copier);
        compter(e.mnuColler.Click, coller);
        QTest::keyClick(&page, Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(e.rtfTexte.SelLength(), 4U);
        QTest::keyClick(&page, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(plateforme.LirePressePapiers(), u"ab\tc");
        QTest::keyClick(&page, Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(e.rtfTexte.Text(), u"");
        QTest::keyClick(&page, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(e.rtfTexte.Text(), u"ab\tc");
        EXPECT_EQ(std::tuple(couper, copier, coller), std::tuple(1, 1, 1));
    });
}

TEST_F(Mains, CtrlZDéfaitCeQueDéfaitLeBouton)
{
    Montrer("frmEnseignant", [&](Ecran& écran) {
        auto& e = dynamic_cast<frmEnseignant&>(écran);
        auto& page = Widget<QTextEdit>(e.rtfTexte);
        page.setFocus();
        QTest::keyClicks(&page, "chat");
        QTest::keyClick(&page, Qt::Key_A, Qt::ControlModifier);
        QTest::mouseClick(Devant().findChild<QWidget*>("btnCouper"), Qt::LeftButton);
        EXPECT_EQ(e.rtfTexte.Text(), u"");
        QTest::keyClick(&page, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(e.rtfTexte.Text(), u"chat");
        QTest::keyClick(&page, Qt::Key_Z, Qt::ControlModifier); // once only
        EXPECT_EQ(e.rtfTexte.Text(), u"chat");
    });
}

TEST_F(Mains, CeQuiSortDUnTexteEstSimpleEtCeQuiEntreEstNettoyé)
{
    EcranTextes textes{application};
    Avec(textes, [&] {
        auto& page = Widget<QTextEdit>(textes.rtfLu);
        page.setFocus();
        textes.rtfLu.Text(u"un\r\ndeux");
        textes.rtfLu.SelBold = true;
        Mettre();
        // The context menu's own copying.
        page.selectAll();
        page.copy();
        const auto* copié = QApplication::clipboard()->mimeData();
        EXPECT_EQ(copié->formats(), QStringList{"text/plain"});
        EXPECT_EQ(DepuisQString(copié->text()), u"un\r\ndeux");
        // Its pasting, and that of the middle button: both insert what the clipboard holds.
        auto* riche = new QMimeData;
        riche->setHtml(QStringLiteral("<b>gras</b>"));
        riche->setText(QStringLiteral("gras\u2028fin"));
        QApplication::clipboard()->setMimeData(riche);
        page.paste();
        EXPECT_EQ(textes.rtfLu.Text(), NormaliserCollage(u"gras\u2028fin"));
    });
}

// ---- Lists that drop down ----------------------------------------------------------------------------------------

TEST_F(Mains, AucuneToucheNeChoisitUnMotOùLaSourisSeuleLePeut)
{
    EcranListe liste{application};
    liste.cmbMots.AddItems({u"chat", u"chien"});
    liste.cmbMots.KeyPress = [](Touche& touche) { touche.Avaler(); };
    Avec(liste, [&] {
        auto& combo = Widget<QComboBox>(liste.cmbMots);
        combo.setFocus();
        for (const auto touche : {Qt::Key_F4, Qt::Key_Down, Qt::Key_Space, Qt::Key_C, Qt::Key_Home, Qt::Key_Return})
            for (const auto avec : {Qt::NoModifier, Qt::AltModifier, Qt::ControlModifier}) {
                QTest::keyClick(&combo, touche, avec, 0);
                EXPECT_FALSE(combo.view()->isVisible()) << touche << " " << avec;
            }
        EXPECT_EQ(liste.cmbMots.ListIndex, -1);
        combo.showPopup(); // by the mouse
        QTest::keyClick(combo.view(), Qt::Key_Down);
        EXPECT_FALSE(combo.view()->isVisible()) << "une touche la referme";
        EXPECT_EQ(liste.cmbMots.ListIndex, -1);
        combo.showPopup();
        QTest::mouseClick(combo.view()->viewport(), Qt::LeftButton, {},
                          combo.view()->visualRect(combo.model()->index(1, 0)).center());
        EXPECT_EQ(liste.cmbMots.Text, u"chien");
    });
}

TEST_F(Mains, LaMoletteNeChoisitRien)
{
    EcranListe liste{application};
    liste.cmbMots.AddItems({u"chat", u"chien"});
    Avec(liste, [&] {
        auto& combo = Widget<QComboBox>(liste.cmbMots);
        combo.setFocus();
        QWheelEvent molette{QPointF{5, 5},
                            combo.mapToGlobal(QPointF{5, 5}),
                            {},
                            {0, -120},
                            Qt::NoButton,
                            Qt::NoModifier,
                            Qt::NoScrollPhase,
                            false};
        QCoreApplication::sendEvent(&combo, &molette);
        EXPECT_EQ(liste.cmbMots.ListIndex, -1);
    });
}

TEST_F(Mains, LaListeNeCouvrePasLeTrou)
{
    EcranListe liste{application};
    for (int i = 0; i < 30; ++i)
        liste.cmbMots.AddItem(u"un mot assez long");
    Texte texte;
    for (int i = 0; i < 40; ++i)
        texte += u"Le ____ dort sous la grande table.\r\n";
    liste.rtfTrous.Locked = true;
    liste.rtfTrous.Text(texte);
    Avec(liste, [&] {
        auto& combo = Widget<QComboBox>(liste.cmbMots);
        auto& page = Widget<QTextEdit>(liste.rtfTrous);
        int vus = 0;
        const std::size_t ligne = texte.find(u'\n') + 1;
        for (std::size_t place = 3; place < texte.size(); place += ligne) {
            liste.rtfTrous.Sélectionner(place, 4);
            Mettre();
            page.ensureCursorVisible();
            auto curseur = page.textCursor();
            const auto fin = page.cursorRect(curseur);
            curseur.setPosition(curseur.anchor());
            const auto trou = page.cursorRect(curseur).united(fin);
            combo.showPopup();
            auto* volet = combo.view()->window();
            const QRect àVoir{page.viewport()->mapToGlobal(trou.topLeft()), trou.size()};
            vus += volet->geometry().intersects(àVoir) ? 0 : 1;
            EXPECT_GE(volet->height(), 4 * combo.view()->sizeHintForRow(0));
            EXPECT_TRUE(combo.screen()->geometry().contains(volet->geometry()));
            combo.hidePopup();
        }
        EXPECT_EQ(vus, 40);
    });
}

// ---- Questions -------------------------------------------------------------------------------------------------

TEST_F(Mains, EntréeNeDétruitPas)
{
    Avec(banc, [&] {
        Ensuite([] { QTest::keyClick(&AuClavier(), Qt::Key_Return); });
        EXPECT_FALSE(application.Demander(u"Détruire ?", {.Danger = Perte::ParOui}));
        Ensuite([] { QTest::keyClick(&AuClavier(), Qt::Key_Return); });
        EXPECT_TRUE(application.Demander(u"Enregistrer ?", {.Danger = Perte::ParNon}));
        Ensuite([] { QTest::keyClick(&AuClavier(), Qt::Key_Return); });
        EXPECT_TRUE(application.Demander(u"Continuer ?"));
    });
}

TEST_F(Mains, EchappementEtLaCroixNePerdentRien)
{
    Avec(banc, [&] {
        for (const bool croix : {false, true}) {
            Ensuite([croix] { croix ? (void)EnAvant().close() : QTest::keyClick(&AuClavier(), Qt::Key_Escape); });
            EXPECT_FALSE(application.Demander(u"Détruire ?", {.Danger = Perte::ParOui}));
            Ensuite([croix] {
                auto& boîte = dynamic_cast<QMessageBox&>(EnAvant());
                croix ? (void)boîte.close() : QTest::keyClick(&AuClavier(), Qt::Key_Escape);
                EXPECT_TRUE(boîte.isVisible()) << "ni oui ni non";
                Ensuite([&boîte] { boîte.findChild<QAbstractButton*>("&Non")->click(); });
            });
            EXPECT_FALSE(application.Demander(u"Enregistrer ?", {.Danger = Perte::ParNon}));
        }
        Ensuite([&] { banc.Décharger(); });
        EXPECT_FALSE(application.Demander(u"Enregistrer ?", {.Danger = Perte::ParNon}));
    });
}

TEST_F(Mains, LaQuestionNommeCeQuElleConcerne)
{
    Avec(banc, [&] {
        Ensuite([] {
            auto& boîte = dynamic_cast<QMessageBox&>(EnAvant());
            EXPECT_EQ(boîte.text(), QStringLiteral("Détruire\u00A0?"));
            EXPECT_EQ(boîte.informativeText(), QStringLiteral("Elève : Léa"));
            boîte.reject();
        });
        EXPECT_FALSE(application.Demander(u"Détruire ?", {.Danger = Perte::ParOui, .Objet = u"Elève : Léa"}));
    });
}

} // namespace tirelune
