// The lexicon and the questionnaire, written without the mouse.
#include "authoring/frmQuestions.h"
#include "authoring/lexicon/frmLexique.h"
#include "core/FichierChamps.h"
#include "tests/desktop/Atelier.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

namespace tirelune {

namespace {

class Clavier : public Atelier {
protected:
    Clavier()
    {
        auto& état = application.état;
        état.CheminAppli = DepuisQString(dossier.path());
        état.CheminTextes = état.CheminAppli + u"/";
        état.TitreFichierTexte = u"Le phare";
        état.NomFichierTexte = état.CheminTextes + u"Le phare.rtf";
    }
    // The keys go where the keyboard is.
    static void Frapper(const QString& texte)
    {
        for (const QChar c : texte) {
            for (const auto genre : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent touche{genre, Qt::Key_unknown, Qt::NoModifier, c};
                QCoreApplication::sendEvent(QApplication::focusWidget(), &touche);
            }
        }
    }
    void Presser(Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier, int fois = 1)
    {
        for (int i = 0; i < fois; ++i) {
            QTest::keyClick(QApplication::focusWidget(), touche, avec);
            if (plateforme.Devant() != nullptr)
                Mettre();
        }
    }
    // The button goes down and up by itself.
    template <class Condition>
    static void PresserAvecAlt(Qt::Key lettre, Condition faite)
    {
        QTest::keyClick(QApplication::focusWidget(), lettre, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor(faite));
    }
    // From one element to another, by Tab alone.
    void AllerA(const Elément& élément)
    {
        for (int i = 0; i < 100 && QApplication::focusWidget() != &Widget(élément); ++i)
            Presser(Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget(), &Widget(élément)) << élément.Nom;
    }
    [[nodiscard]] std::vector<Texte> ChampsDe(const char* nom) const
    {
        const auto champs = LireChamps(EnChemin(DepuisQString(dossier.filePath(nom))));
        return champs.value_or(std::vector<Texte>{u"aucun fichier"});
    }

    const QTemporaryDir dossier;
};

} // namespace

TEST_F(Clavier, CentMotsEtLeursDéfinitionsSansLaSouris)
{
    frmLexique écran{application};
    std::vector<Texte> attendus;
    Avec(écran, [&] {
        for (int i = 0; i < 100; ++i) {
            const auto numéro = QString::number(i);
            Presser(Qt::Key_Return, Qt::ControlModifier);
            EXPECT_EQ(QApplication::focusWidget(), &Widget(écran.txtMot(SélecteurDicTexte)));
            Frapper("mot" + numéro);
            Presser(Qt::Key_Return);
            Presser(Qt::Key_Tab, Qt::NoModifier, 2);
            Frapper(QString::fromUtf8("Définition ") + numéro);
            Presser(Qt::Key_Tab);
            Frapper("Exemple " + numéro);
            for (const auto& champ :
                 {QStringLiteral("*"), "mot" + numéro, QString::fromUtf8("Définition ") + numéro, "Exemple " + numéro})
                attendus.push_back(DepuisQString(champ));
        }
        PresserAvecAlt(Qt::Key_Q, [&] { return !écran.EstChargé(); });
    });
    EXPECT_EQ(ChampsDe("Le phare.dic"), attendus);
    EXPECT_EQ(ChampsDe("DicPrinc.dat"), attendus);
}

TEST_F(Clavier, UneFamilleSeTapeSeModifieEtSeSupprimeSansLaSouris)
{
    frmLexique écran{application};
    Avec(écran, [&] {
        EXPECT_EQ(QApplication::focusWidget(), &Widget(écran.txtMot(0)));
        Frapper("Mer");
        Presser(Qt::Key_Tab);
        Frapper("bateaux");
        Presser(Qt::Key_Tab);
        for (const auto* mot : {"la voile", "le port", "la coque"}) {
            Frapper(mot);
            Presser(Qt::Key_Return);
            EXPECT_EQ(Widget<QLineEdit>(écran.txtMot(2)).selectedText(), QString{mot});
        }
        AllerA(écran.cmdSupprimer(2)); // shows "la coque"
        Presser(Qt::Key_Space);
        EXPECT_EQ(écran.cmbListe(2).Eléments(), (std::vector<Texte>{u"la voile", u"le port"}));
        AllerA(écran.cmdModifier(1));
        Presser(Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), &Widget(écran.txtModif));
        EXPECT_EQ(Widget<QLineEdit>(écran.txtModif).selectedText(), u"bateaux");
        EXPECT_EQ(Widget(écran.txtModif).mapTo(&Devant(), QPoint{}),
                  Widget(écran.txtMot(1)).mapTo(&Devant(), QPoint{}));
        EXPECT_EQ(Widget(écran.txtModif).size(), Widget(écran.txtMot(1)).size());
        Frapper("Navires");
        Presser(Qt::Key_Return);
        EXPECT_FALSE(Widget(écran.txtModif).isVisible());
        EXPECT_EQ(QApplication::focusWidget(), &Widget(écran.txtMot(1)));
        PresserAvecAlt(Qt::Key_E, [&] { return QFile::exists(dossier.filePath("DicPrinc.dat")); });
        EXPECT_EQ(ChampsDe("Familles.dat"), (std::vector<Texte>{u"*", u"mer", u"Navires", u"la voile", u"le port"}));
        AllerA(écran.cmdModifier(0));
        Presser(Qt::Key_Space);
        Frapper("jamais");
        Presser(Qt::Key_Tab); // leaves the change behind
        EXPECT_EQ(écran.txtMot(0).Text, u"mer");
        AllerA(écran.cmdSupprimer(0));
        Ensuite([&] {
            auto& boîte = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
            QTest::keyClick(&boîte, Qt::Key_Escape);
        });
        Presser(Qt::Key_Space);
        EXPECT_EQ(écran.fgFamilles.Rows(), 1);
    });
}

TEST_F(Clavier, LaFlècheDeLaListeResteLibreÀCôtéDuChamp)
{
    frmLexique écran{application};
    ASSERT_FALSE(RéécrireFichier(EnChemin(DepuisQString(dossier.filePath("Synonymes.dat"))),
                                 "\"*\"\r\n\"content\"\r\n\"gai\"\r\n\"*\"\r\n\"triste\"\r\n\"morne\"\r\n"));
    Avec(écran, [&] {
        for (const QSize taille : {QSize{800, 600}, QSize{1366, 768}, QSize{1920, 1080}}) {
            Devant().setGeometry({QPoint{0, 0}, taille});
            Mettre();
            QCoreApplication::sendPostedEvents();
            for (int i = 0; i < NombreDeSélecteurs; ++i) {
                auto& liste = Widget<QComboBox>(écran.cmbListe(i));
                auto& champ = Widget(écran.txtMot(i));
                const auto au = [&](double part) {
                    return Devant().childAt(
                        liste.mapTo(&Devant(), QPoint{static_cast<int>(liste.width() * part), liste.height() / 2}));
                };
                EXPECT_EQ(au(0.3), &champ) << i;
                EXPECT_EQ(Devant().childAt(liste.mapTo(&Devant(), QPoint{liste.width() - 10, liste.height() / 2})),
                          &liste)
                    << i;
                EXPECT_GE(champ.width(), liste.width() / 2) << i;
            }
        }
        auto& liste = Widget<QComboBox>(écran.cmbListe(SélecteurSynonyme));
        QTest::mouseClick(&liste, Qt::LeftButton, {}, QPoint{liste.width() - 10, liste.height() / 2});
        ASSERT_TRUE(liste.view()->isVisible());
        QTest::keyClick(liste.view(), Qt::Key_Down);
        QTest::keyClick(liste.view(), Qt::Key_Return);
        Mettre();
        EXPECT_EQ(écran.txtMot(SélecteurSynonyme).Text, u"triste");
        EXPECT_EQ(écran.txtMot(SélecteurSynonyme + 1).Text, u"morne");
    });
}

TEST_F(Clavier, UnQuestionnaireSÉcritSansLaSouris)
{
    frmQuestions écran{application};
    Avec(écran, [&] {
        EXPECT_EQ(QApplication::focusWidget(), &Widget(écran.txtQuestion));
        Frapper("Un");
        Presser(Qt::Key_Return);
        Frapper("deux ?");
        AllerA(écran.chkRéponse(1));
        Presser(Qt::Key_Space);
        PresserAvecAlt(Qt::Key_S, [&] { return écran.lblNuméro.Caption == u"2"; });
        Mettre();
        EXPECT_EQ(QApplication::focusWidget(), &Widget(écran.txtQuestion));
        Frapper("Trois ?");
        Presser(Qt::Key_Tab);
        Presser(Qt::Key_A, Qt::ControlModifier);
        Frapper("Oui.");
        PresserAvecAlt(Qt::Key_Q, [&] { return !écran.EstChargé(); });
    });
    const auto champs = ChampsDe("Le phare.qst");
    ASSERT_EQ(champs.size(), 2U * ChampsParQuestion);
    EXPECT_EQ(champs[0], u"Un\r\ndeux ?");
    EXPECT_EQ(champs[4], u"1");
    EXPECT_EQ(champs[ChampsParQuestion], u"Trois ?");
    EXPECT_EQ(champs[ChampsParQuestion + 1], u"Oui.");
}

} // namespace tirelune
