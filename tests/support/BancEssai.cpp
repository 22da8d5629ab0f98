// The test platform notices what a test would otherwise overlook.
#include "core/Tirage.h"
#include "tests/support/Banc.h"
#include "tests/support/EcranTexte.h"

#include <gtest/gtest-spi.h>

namespace tirelune {

namespace {

// A screen that does one thing while it loads.
class EcranPressé final : public Ecran {
public:
    EcranPressé(Application& application, std::function<void(EcranPressé&)> faire)
        : Ecran(application, "EcranPressé", u""), faire_(std::move(faire))
    {
    }

    using Ecran::Attendre;
    using Ecran::AttendreArrêt;
    Timer Chrono{*this, "Chrono", 100};

private:
    void Load() override { faire_(*this); }
    Arrangement Disposer() override { return Colonne{}; }

    std::function<void(EcranPressé&)> faire_;
};

} // namespace

TEST(Banc, UnTirageSansAmorceEstUneFaute)
{
    Banc banc;
    banc.Hasards({0.5, 0.5});
    EXPECT_EQ(Tirer(banc.plateforme, 4), 2U);
    EXPECT_NONFATAL_FAILURE(banc.plateforme.Hasard(), "tirage sans amorce");
    EXPECT_EQ(banc.plateforme.amorces, 1);
    EXPECT_EQ(banc.plateforme.tirages, 2);
}

TEST(Banc, DeuxAmorcesPourUnTirageSontUneFaute)
{
    Banc banc;
    banc.Hasards({0.5});
    banc.plateforme.AmorcerHasard();
    EXPECT_NONFATAL_FAILURE(banc.plateforme.AmorcerHasard(), "deux amorces pour un tirage");
    banc.plateforme.Hasard();
}

TEST(Banc, UneAmorceSansTirageEstUneFaute)
{
    Banc banc;
    banc.Hasards({0.5});
    banc.plateforme.AmorcerHasard();
    EXPECT_NONFATAL_FAILURE(
        {
            banc.plateforme.hasards.clear();
            banc.plateforme.VérifierFin();
        },
        "amorce sans tirage");
    banc.Hasards({0.5});
    banc.plateforme.Hasard();
}

TEST(Banc, UneRègleQuiAmorceAutrementLeDit)
{
    Banc banc;
    banc.plateforme.amorcesLibres = true;
    banc.Hasards({0.5, 0.5});
    banc.plateforme.AmorcerHasard();
    banc.plateforme.Hasard();
    banc.plateforme.Hasard();
    banc.plateforme.AmorcerHasard();
    EXPECT_EQ(banc.plateforme.amorces, 2);
}

TEST(Banc, CeQuiEstAnnoncéEtNeVientJamaisEstUneFaute)
{
    Banc banc;
    auto& plateforme = banc.plateforme;
    const auto vérifier = [&](auto& annoncés, auto un, const char* attendu) {
        annoncés.push_back(std::move(un));
        EXPECT_NONFATAL_FAILURE(plateforme.VérifierFin(), attendu);
        annoncés.clear();
    };
    vérifier(plateforme.hasards, 0.5, "1 tirages annoncés de trop");
    vérifier(plateforme.boîtes, PlateformeEssai::BoîteAnnoncée{u"Un mot", Réponse::Ok, std::nullopt, {}},
             "boîte annoncée jamais montrée : Un mot");
    vérifier(plateforme.fichiers, std::optional<Texte>{}, "dialogue de fichier annoncé jamais montré");
    vérifier(plateforme.couleurs, std::optional<Couleur>{}, "dialogue de couleur annoncé jamais montré");
    vérifier(plateforme.choixPolices, std::optional<ChoixPolice>{}, "dialogue de police annoncé jamais montré");
    vérifier(plateforme.impressions, true, "dialogue d'impression annoncé jamais montré");
    vérifier(plateforme.modaux, std::pair<std::string, std::function<void(Ecran&)>>{}, "écran annoncé jamais montré");
    plateforme.Prévoir(5ms, [] {});
    EXPECT_NONFATAL_FAILURE(plateforme.VérifierFin(), "1 actions prévues jamais faites");
    plateforme.Avancer(5ms);
}

TEST(Banc, CeQuiVientSansAnnonceEstUneFaute)
{
    Banc banc;
    auto& plateforme = banc.plateforme;
    plateforme.AmorcerHasard();
    EXPECT_NONFATAL_FAILURE(plateforme.Hasard(), "tirage qui n'a pas été annoncé");
    EXPECT_NONFATAL_FAILURE(plateforme.AfficherBoîte({.Message = u"Un mot"}), "pas été annoncée : Un mot");
    EXPECT_NONFATAL_FAILURE(plateforme.DemanderFichierAOuvrir({}), "dialogue de fichier");
    EXPECT_NONFATAL_FAILURE(plateforme.DemanderFichierAEnregistrer({}), "dialogue de fichier");
    EXPECT_NONFATAL_FAILURE(plateforme.DemanderCouleur(Rouge), "dialogue de couleur");
    EXPECT_NONFATAL_FAILURE(plateforme.DemanderPolice({}), "dialogue de police");
    EXPECT_NONFATAL_FAILURE(plateforme.Imprimer({}, {}), "dialogue d'impression");
    EcranTexte écran{banc.application};
    EXPECT_NONFATAL_FAILURE(écran.Afficher(), "écran qui n'a pas été annoncé");
}

TEST(Banc, UneAttenteQueRienNeFinitEstUneFaute)
{
    Banc banc;
    EcranPressé écran{banc.application, [](EcranPressé& une) { une.Chrono.Enabled = true; }};
    écran.Charger();
    banc.plateforme.EcranFermé(écran); // its ticks are gone, and it is still loaded
    EXPECT_NONFATAL_FAILURE(EXPECT_TRUE(écran.AttendreArrêt(écran.Chrono)), "attente sans fin de Chrono");
    écran.Décharger();
}

TEST(Banc, TerminerFinitLesAttentesEtNeMontrePlusRien)
{
    Banc banc;
    bool attente = true;
    bool arrêt = true;
    int battements = 0;
    EcranPressé écran{banc.application, [&](EcranPressé& une) {
                          une.Chrono.Tick = [&] { ++battements; };
                          une.Chrono.Enabled = true;
                          banc.plateforme.Prévoir(5ms, [&] { banc.plateforme.Terminer(); });
                          attente = une.Attendre(1h);
                          arrêt = une.AttendreArrêt(une.Chrono);
                      }};
    écran.Afficher();
    EXPECT_FALSE(attente || arrêt);
    EXPECT_TRUE(écran.EstChargé()); // ended, not unloaded
    EXPECT_TRUE(banc.plateforme.écransMontrés.empty());
    EXPECT_FALSE(banc.application.Demander(u"Encore ?")); // nothing is asked any more
    EXPECT_EQ(banc.plateforme.DemanderFichierAOuvrir({}), std::nullopt);
    EXPECT_EQ(banc.plateforme.DemanderCouleur(Rouge), std::nullopt);
    EXPECT_FALSE(banc.plateforme.Imprimer({}, {}));
    banc.Avancer(1s);
    EXPECT_EQ(battements, 0);
}

TEST(Banc, TerminerRendLaMainAuxÉcransDuDessous)
{
    Banc banc;
    EcranPressé dessus{banc.application, [](EcranPressé&) {}};
    EcranPressé dessous{banc.application, [](EcranPressé&) {}};
    banc.QuandOuvert<EcranPressé>([&](EcranPressé&) {
        banc.QuandOuvert<EcranPressé>([&](EcranPressé&) { banc.plateforme.Terminer(); });
        dessus.Afficher();
        EXPECT_TRUE(dessus.EstChargé());
    });
    dessous.Afficher();
    EXPECT_TRUE(dessous.EstChargé());
}

} // namespace tirelune
