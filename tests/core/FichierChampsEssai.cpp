#include "core/FichierChamps.h"

#include "core/Fichiers.h"
#include "tests/support/Banc.h"

namespace tirelune {

namespace {

using Champs = std::vector<Texte>;

Champs SurUneLigne(std::string_view octets)
{
    return DécouperChamps(octets, Valeurs::SurUneLigne);
}

} // namespace

TEST(FichierChamps, RienDonneRien)
{
    for (const auto* octets : {"", " ", "\r\n\r\n", "\t \n"}) {
        EXPECT_TRUE(DécouperChamps(octets).empty());
        EXPECT_TRUE(SurUneLigne(octets).empty());
    }
    EXPECT_EQ(ComposerChamps({}), "");
}

TEST(FichierChamps, EcritUnChampParLigneEntreGuillemets)
{
    EXPECT_EQ(ComposerChamps({u"*", u"été", u"", u" œ "}), "\"*\"\r\n\"\xE9t\xE9\"\r\n\"\"\r\n\" \x9C \"\r\n");
    EXPECT_FALSE(ComposerChamps({u"a", u"Ω"}).has_value());
}

TEST(FichierChamps, CeQuiEstEcritSeRelit)
{
    const Champs champs{u"*", u"", u"a,b", u"l'été", u" blancs ", u"\t", u"deux\r\nlignes", u"\r\n", u"*", u"œ€"};
    EXPECT_EQ(DécouperChamps(*ComposerChamps(champs)), champs);
    const Champs simples{u"*", u"", u"a,b", u" blancs ", u"\t", u"*", u"fin"};
    EXPECT_EQ(SurUneLigne(*ComposerChamps(simples)), simples);
}

TEST(FichierChamps, DéfinitionSurPlusieursLignesSurvit)
{
    const Champs champs{u"*", u"chat", u"Animal.\r\nIl miaule.\n\nEt dort.", u""};
    EXPECT_EQ(DécouperChamps(*ComposerChamps(champs)), champs);
}

TEST(FichierChamps, ToutesLesFinsDeLigne)
{
    for (const auto* octets : {"\"a\"\r\n\"b\"\r\n", "\"a\"\n\"b\"\n", "\"a\"\r\"b\"", "\n\n\"a\"\r\n\n\"b\""}) {
        EXPECT_EQ(DécouperChamps(octets), (Champs{u"a", u"b"}));
        EXPECT_EQ(SurUneLigne(octets), (Champs{u"a", u"b"}));
    }
}

TEST(FichierChamps, VirguleSépareEtBlancsDevantSePassent)
{
    for (const auto* octets : {"\"a\",\"b\"", "\"a\" ,\t\"b\"\r\n", "\"a\",\"b", "\"a\",\"b\r\n"}) {
        EXPECT_EQ(SurUneLigne(octets), (Champs{u"a", u"b"}));
        EXPECT_EQ(DécouperChamps(octets).front(), u"a");
    }
    EXPECT_EQ(DécouperChamps("\"a\",\"deux\r\nlignes\",\"\",\"b\""), (Champs{u"a", u"deux\r\nlignes", u"", u"b"}));
    EXPECT_EQ(DécouperChamps("c, d \r\n  e"), (Champs{u"c", u"d", u"e"}));
    EXPECT_EQ(DécouperChamps("a,,b"), (Champs{u"a", u"", u"b"}));
    EXPECT_EQ(SurUneLigne("6,5\n7"), (Champs{u"6,5", u"7"})); // a comma is part of the number there
}

TEST(FichierChamps, GuillemetIntérieurNeFermePas)
{
    EXPECT_EQ(DécouperChamps("\"dit \"oui\" fort\"\r\n\"b\""), (Champs{u"dit \"oui\" fort", u"b"}));
    EXPECT_EQ(SurUneLigne("\"dit \"oui\" fort\"\r\n\"b\""), (Champs{u"dit \"oui\" fort", u"b"}));
}

TEST(FichierChamps, VirguleDerrièreUnGuillemetDansUnePhraseNeSéparePas)
{
    for (const auto* phrase : {u"Qui dit \"bonjour\", le matin ?", u"Il dit \"oui\", \"non\" et \"peut-être\".",
                               u"\"oui\",\"non\" ?", u"Il dit \"oui\",", u"\"oui\",\"non\", dit-il"}) {
        const Champs champs{phrase, u"suite"};
        EXPECT_EQ(DécouperChamps(*ComposerChamps(champs)), champs);
        EXPECT_EQ(SurUneLigne(*ComposerChamps(champs)), champs);
    }
}

TEST(FichierChamps, CeQuiEstLuDUnFichierAbîméSeRelitEgal)
{
    // Every text of up to seven of the signs that matter.
    static constexpr std::string_view Signes = "\", a\n";
    for (std::size_t longueur = 1; longueur <= 7; ++longueur) {
        std::size_t nombre = 1;
        for (std::size_t i = 0; i < longueur; ++i)
            nombre *= Signes.size();
        for (std::size_t numéro = 0; numéro < nombre; ++numéro) {
            std::string octets;
            for (auto reste = numéro; octets.size() < longueur; reste /= Signes.size())
                octets += Signes[reste % Signes.size()];
            for (const auto valeurs : {Valeurs::SurPlusieursLignes, Valeurs::SurUneLigne}) {
                const auto champs = DécouperChamps(octets, valeurs);
                ASSERT_EQ(DécouperChamps(*ComposerChamps(champs), valeurs), champs) << octets;
            }
        }
    }
}

TEST(FichierChamps, GuillemetDOuverturePerdu)
{
    EXPECT_EQ(SurUneLigne("a\",b\r\n\"c\""), (Champs{u"a\",b", u"c"}));
    EXPECT_EQ(SurUneLigne("a\",\"b\"\r\n"), (Champs{u"a", u"b"}));
    EXPECT_EQ(SurUneLigne("a\"\r\nb  \r\n"), (Champs{u"a", u"b"}));
    EXPECT_EQ(DécouperChamps("a\",b"), (Champs{u"a\"", u"b"}));
}

TEST(FichierChamps, GuillemetJamaisFermé)
{
    EXPECT_EQ(DécouperChamps("\"a\r\nb"), (Champs{u"a\r\nb"})); // to the end
    EXPECT_EQ(SurUneLigne("\"a\r\nb\r\n\"c\""), (Champs{u"a", u"b", u"c"}));
    EXPECT_EQ(SurUneLigne("\""), (Champs{u""}));
    EXPECT_EQ(DécouperChamps("\""), (Champs{u""}));
    EXPECT_EQ(SurUneLigne("\"\r\n\"\r\n"), (Champs{u"", u""}));
}

TEST(FichierChamps, OctetNulEtOctetsNonAttribuésRestent)
{
    const std::string octets{"\"a\0b\x81\"\r\n", 8};
    EXPECT_EQ(DécouperChamps(octets), (Champs{Texte{u'a', u'\0', u'b', 0x81}}));
}

TEST(FichierChamps, AstérisqueNEstUnMarqueurQueSeul)
{
    EXPECT_EQ(Marqueur, u"*");
    EXPECT_EQ(DécouperChamps("\"**\"\r\n\"* a\"\r\n*"), (Champs{u"**", u"* a", u"*"}));
}

TEST(FichierChamps, FichierAbsentOuVide)
{
    Banc banc;
    EXPECT_FALSE(LireChamps(banc.dossier / "absent.dat").has_value());
    EXPECT_FALSE(LireChamps(banc.dossier).has_value());
    EXPECT_EQ(LireChamps(banc.dossier / "absent.dat").Echec, EchecLecture::Absent);
    EXPECT_EQ(LireChamps(banc.Ecrire("vide.dat", "")), Champs{});
}

TEST(FichierChamps, UnFichierTropGrandEstRefusé)
{
    Banc banc;
    const auto fichier = banc.Ecrire("a.dat", "\"a\"\r\n");
    std::filesystem::resize_file(fichier, TailleDUnFichierDeChamps);
    EXPECT_EQ(LireChamps(fichier, Valeurs::SurUneLigne)->size(), 2U); // the rest is a value of NULs
    std::filesystem::resize_file(fichier, TailleDUnFichierDeChamps + 1);
    EXPECT_EQ(LireChamps(fichier).Echec, EchecLecture::TropGrand);
}

TEST(FichierChamps, TropDeChampsPourLaMémoireSontRefusés)
{
    Banc banc;
    std::string octets;
    for (std::size_t i = 0; i < ChampsDUnFichier; ++i)
        octets += "*\n";
    EXPECT_EQ(LireChamps(banc.Ecrire("a.dat", octets))->size(), ChampsDUnFichier);
    const auto lus = LireChamps(banc.Ecrire("b.dat", octets + "*"));
    EXPECT_FALSE(lus);
    EXPECT_EQ(lus.Echec, EchecLecture::TropGrand);
}

TEST(FichierChamps, CeQuiTientDansUnChamp)
{
    EXPECT_TRUE(TientDansUnChamp(u""));
    EXPECT_TRUE(TientDansUnChamp(u"l'œuf, « à point »"));
    EXPECT_FALSE(TientDansUnChamp(u"dit \"oui\""));
    EXPECT_FALSE(TientDansUnChamp(u"Ω"));
}

TEST(FichierChamps, BlancsEtGuillemetsEnFouleSeLisentEnTempsLinéaire)
{
    // A million quotes, none of which closes the value: one pass, or the test would never end.
    std::string octets = "\"";
    for (int i = 0; i < 1000000; ++i)
        octets += "\" x";
    EXPECT_EQ(DécouperChamps(octets).size(), 1U);
    EXPECT_EQ(SurUneLigne(octets).size(), 1U);
    std::string lignes;
    std::string suite;
    for (int i = 0; i < 200000; ++i) {
        lignes += "\"a\n";
        suite += "\"a\",";
    }
    EXPECT_EQ(SurUneLigne(lignes).size(), 200000U);
    EXPECT_EQ(SurUneLigne(suite).size(), 200000U);
    EXPECT_EQ(DécouperChamps(suite).size(), 200000U);
    EXPECT_EQ(DécouperChamps("\"" + std::string(1000000, ' ') + suite).size(), 200000U);
}

TEST(FichierChamps, LeQuestionnaireFourniSeRelitOctetPourOctet)
{
    const Chemin textes = Chemin{DOSSIER_SOURCES} / "textes";
    for (const auto& entrée : std::filesystem::directory_iterator{textes}) {
        if (entrée.path().extension() != ".qst")
            continue;
        const auto champs = LireChamps(entrée.path());
        ASSERT_TRUE(champs.has_value());
        EXPECT_EQ(champs->size() % 11, 0U);
        EXPECT_EQ(ComposerChamps(*champs), LireFichier(entrée.path()));
    }
}

} // namespace tirelune
