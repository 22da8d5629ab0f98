#include "tests/desktop/Atelier.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMessageBox>

#include <set>

namespace tirelune {

using namespace std::chrono_literals;

namespace {

struct EcranAttente final : EcranEssai {
    using EcranEssai::EcranEssai;
    Button cmdOk{*this, "cmdOk", u"&Ok"};
    TextBox txtMot{*this, "txtMot"};
    Timer Chrono{*this, "Chrono", 1};
    Arrangement Disposer() override { return Colonne{cmdOk, txtMot}; }
};

class Attentes : public Atelier {
protected:
    EcranAttente écran{application};
};

QMessageBox* BoîteOuverte()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

} // namespace

TEST_F(Attentes, UnÉcranDessusRendLaMainÀSaFermeture)
{
    EcranAttente dessus{application};
    std::string suite;
    écran.àLActivation = [&] { suite += 'a'; };
    dessus.àLActivation = [&] { suite += 'b'; };
    écran.cmdOk.Click = [&] {
        Ensuite([&] {
            EXPECT_EQ(&Devant().EcranDe(), &dessus);
            suite += 's';
            Devant().close(); // the close box
        });
        écran.Ouvrir(dessus);
        suite += 'r';
    };
    Avec(écran, [&] {
        Cliquer(écran.cmdOk);
        EXPECT_EQ(suite, "absar");
        EXPECT_EQ(dessus.déchargements, 1);
        EXPECT_TRUE(écran.EstChargé());
    });
    EXPECT_EQ(écran.déchargements, 1);
    EXPECT_EQ(plateforme.Devant(), nullptr);
}

TEST_F(Attentes, UnÉcranQuiSeDéchargeEnChargeantNeSeMontrePas)
{
    écran.auChargement = [&] { écran.Décharger(); };
    écran.Afficher();
    EXPECT_EQ(écran.déchargements, 1);
}

TEST_F(Attentes, UnÉcranQuiSeDéchargeEnVenantDevantSeFerme)
{
    écran.àLActivation = [&] { écran.Décharger(); };
    écran.Afficher();
    EXPECT_EQ(écran.déchargements, 1);
}

TEST_F(Attentes, AttendreJetteCeQuiSeTapeEtSeClique)
{
    int clics = 0;
    bool finie = false;
    écran.cmdOk.Click = [&] { ++clics; };
    Avec(écran, [&] {
        Ensuite([&] {
            QTest::keyClicks(&Widget(écran.txtMot), "abc");
            Cliquer(écran.cmdOk);
        });
        finie = écran.Attendre(2ms);
        EXPECT_TRUE(finie);
        EXPECT_EQ(clics, 0);
        EXPECT_EQ(écran.txtMot.Text(), u"");
        Cliquer(écran.cmdOk);
        EXPECT_EQ(clics, 1);
    });
}

TEST_F(Attentes, RienNeBatPendantQueLOnAttend)
{
    int battements = 0;
    écran.Chrono.Tick = [&] {
        ++battements;
        écran.Chrono.Enabled = false;
    };
    Avec(écran, [&] {
        écran.Chrono.Enabled = true;
        EXPECT_TRUE(écran.Attendre(8ms));
        EXPECT_EQ(battements, 0);
        EXPECT_TRUE(écran.AttendreArrêt(écran.Chrono)); // comes now
        EXPECT_EQ(battements, 1);
    });
}

TEST_F(Attentes, FermerPendantUneAttenteLaFinit)
{
    bool suite = true;
    Avec(écran, [&] {
        Ensuite([&] { Devant().close(); });
        suite = écran.Attendre(1h);
    });
    EXPECT_FALSE(suite);
    EXPECT_EQ(écran.déchargements, 1);
}

TEST_F(Attentes, AttendreLArrêtDUneMinuterie)
{
    int battements = 0;
    écran.Chrono.Tick = [&] {
        if (++battements == 3)
            écran.Chrono.Enabled = false;
    };
    Avec(écran, [&] {
        écran.Chrono.Enabled = true;
        Ensuite([&] { QTest::keyClicks(&Widget(écran.txtMot), "a"); });
        EXPECT_TRUE(écran.AttendreArrêt(écran.Chrono));
        EXPECT_EQ(battements, 3);
        EXPECT_EQ(écran.txtMot.Text(), u"a");           // events pass
        EXPECT_TRUE(écran.AttendreArrêt(écran.Chrono)); // already stopped
    });
}

TEST_F(Attentes, FermerPendantQuUneMinuterieTourne)
{
    bool suite = true;
    écran.Chrono.Interval = 3600000;
    Avec(écran, [&] {
        écran.Chrono.Enabled = true;
        Ensuite([&] { écran.FermerParCroix(); });
        suite = écran.AttendreArrêt(écran.Chrono);
    });
    EXPECT_FALSE(suite);
}

TEST_F(Attentes, UnIntervalleNulArrêteLaMinuterie)
{
    écran.Chrono.Interval = 3600000;
    Avec(écran, [&] {
        écran.Chrono.Enabled = true;
        Ensuite([&] { écran.Chrono.Interval = 0; });
        EXPECT_TRUE(écran.AttendreArrêt(écran.Chrono));
    });
}

TEST_F(Attentes, UneMinuterieEnMarcheDèsLeDébutBatUneFoisLÉcranMontré)
{
    int battements = 0;
    écran.Chrono.Enabled = true;
    écran.Chrono.Tick = [&] {
        ++battements;
        écran.Chrono.Enabled = false;
    };
    Avec(écran, [&] {
        EXPECT_TRUE(écran.AttendreArrêt(écran.Chrono));
        EXPECT_EQ(battements, 1);
    });
}

TEST_F(Attentes, UneBoîteRépondParSesBoutons)
{
    Avec(écran, [&] {
        Ensuite([&] {
            auto* boîte = BoîteOuverte();
            ASSERT_NE(boîte, nullptr);
            EXPECT_EQ(boîte->text(), QStringLiteral("Le texte est trop court\u00A0!"));
            ASSERT_EQ(boîte->buttons().size(), 1);
            EXPECT_EQ(boîte->buttons().front()->text(), "OK");
            boîte->buttons().front()->click();
        });
        application.Avertir(u"Le texte est trop court !");
        for (const char* légende : {"&Oui", "&Non"}) {
            Ensuite([légende] { BoîteOuverte()->findChild<QAbstractButton*>(légende)->click(); });
            EXPECT_EQ(application.Demander(u"Encore ?"), légende == std::string_view{"&Oui"});
        }
    });
}

TEST_F(Attentes, UneBoîteNeCoupePasAvantUnPointDInterrogation)
{
    Avec(écran, [&] {
        Ensuite([&] {
            EXPECT_EQ(BoîteOuverte()->text(),
                      QStringLiteral("Oui\u00A0: non\u00A0; «peut-être\u00A0»\u00A0?\nEt\u00A0!"));
            BoîteOuverte()->buttons().front()->click();
        });
        application.Avertir(u"Oui : non ; «peut-être » ?\r\nEt !");
    });
}

TEST_F(Attentes, EchappementRefuse)
{
    Avec(écran, [&] {
        const auto échapper = [] { QTest::keyClick(BoîteOuverte(), Qt::Key_Escape); };
        Ensuite(échapper);
        EXPECT_EQ(plateforme.AfficherBoîte({u"?", u"T", Boutons::OuiNon}), Réponse::Non);
        Ensuite(échapper);
        EXPECT_EQ(plateforme.AfficherBoîte({u"?", u"T", Boutons::OkAnnuler}), Réponse::Annuler);
        Ensuite(échapper);
        EXPECT_EQ(plateforme.AfficherBoîte({u"?", u"T", Boutons::Ok}), Réponse::Ok);
    });
}

TEST_F(Attentes, UnÉcranFerméEmporteSaBoîte)
{
    Avec(écran, [&] {
        Ensuite([&] { écran.Décharger(); });
        EXPECT_FALSE(application.Demander(u"Encore ?"));
        EXPECT_FALSE(écran.EstChargé());
    });
}

TEST_F(Attentes, TerminerFermeTousLesÉcrans)
{
    EcranAttente dessus{application};
    bool attente = true;
    écran.cmdOk.Click = [&] { dessus.Afficher(); };
    Avec(écran, [&] {
        Ensuite([&] {
            Ensuite([&] { plateforme.Terminer(); });
            attente = dessus.Attendre(1h);
        });
        Cliquer(écran.cmdOk);
        EXPECT_FALSE(attente);
        EXPECT_FALSE(application.Demander(u"Encore ?")); // no box comes up any more
    });
    EXPECT_EQ(plateforme.Devant(), nullptr);
}

TEST_F(Attentes, LHeureEtLesDés)
{
    const double heure = plateforme.Horloge();
    EXPECT_GE(heure, 0);
    EXPECT_LT(heure, 86400);
    std::set<double> tirages;
    for (int i = 0; i < 200; ++i) {
        plateforme.AmorcerHasard();
        const double tirage = plateforme.Hasard();
        EXPECT_GE(tirage, 0);
        EXPECT_LT(tirage, 1);
        tirages.insert(tirage);
    }
    EXPECT_EQ(tirages.size(), 200U); // the clock has hardly moved
}

TEST_F(Attentes, LesLecteursCommencentParLaRacineEtLaMaison)
{
    const auto lecteurs = plateforme.Lecteurs();
    ASSERT_GE(lecteurs.size(), 2U);
    EXPECT_EQ(lecteurs[0], u"/");
    EXPECT_EQ(lecteurs[1], DepuisUtf8(qgetenv("HOME").toStdString()));
}

TEST_F(Attentes, LesPolicesViennentAprèsLaPremièreImage)
{
    std::vector<Texte> reçues;
    plateforme.DemanderPolices([&](std::vector<Texte> noms) { reçues = std::move(noms); });
    Avec(écran, [&] {
        EXPECT_TRUE(reçues.empty());
        Devant().grab();
        Ensuite([] {});
        QCoreApplication::processEvents();
        EXPECT_FALSE(reçues.empty());
    });
}

TEST_F(Attentes, LaPremièreFenêtreMontreDAbordSonFond)
{
    int activations = 0;
    plateforme.MontrerFondDAbord();
    écran.àLActivation = [&] {
        ++activations;
        EXPECT_TRUE(Devant().isVisible());
        EXPECT_TRUE(Devant().findChildren<QAbstractButton*>().isEmpty());
    };
    écran.àLaTaille = [&] {
        EXPECT_EQ(activations, 1);
        Ensuite([&] { Cliquer(écran.cmdOk); });
    };
    écran.cmdOk.Click = [&] { écran.Décharger(); };
    écran.Afficher();
    EXPECT_EQ(activations, 1);
    EXPECT_EQ(écran.déchargements, 1);
}

TEST_F(Attentes, LaLargeurDUnTexteEstEnTwips)
{
    Avec(écran, [&] {
        const double un = plateforme.LargeurTexte(u"lune", 0);
        EXPECT_GT(un, 4 * 60);
        EXPECT_NEAR(plateforme.LargeurTexte(u"lunelune", 0), 2 * un, un / 8);
        EXPECT_GT(plateforme.LargeurTexte(u"lune", 24), un * 1.5);
    });
}

} // namespace tirelune
