#include "core/Fichiers.h"

#include "followup/EnregistrerNotes.h"
#include "tests/support/Banc.h"

#include <csignal>

#include <sys/resource.h>

namespace tirelune {

namespace {

// A disk with room for that many bytes: writing more fails half way.
class DisquePlein {
public:
    explicit DisquePlein(rlim_t octets) : signal_(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &limite_);
        auto courte = limite_;
        courte.rlim_cur = octets;
        ::setrlimit(RLIMIT_FSIZE, &courte);
    }
    DisquePlein(const DisquePlein&) = delete;
    DisquePlein& operator=(const DisquePlein&) = delete;
    ~DisquePlein()
    {
        ::setrlimit(RLIMIT_FSIZE, &limite_);
        static_cast<void>(std::signal(SIGXFSZ, signal_));
    }

private:
    rlimit limite_{};
    void (*signal_)(int);
};

} // namespace

TEST(Fichiers, RéécritEtRelit)
{
    Banc banc;
    const auto fichier = banc.dossier / "été.bin";
    std::string octets;
    for (int i = 0; i < 300000; ++i)
        octets += static_cast<char>(i);
    EXPECT_FALSE(RéécrireFichier(fichier, octets));
    EXPECT_EQ(LireFichier(fichier), octets);
    EXPECT_FALSE(RéécrireFichier(fichier, "court")); // nothing of the longer one is left
    EXPECT_EQ(LireFichier(fichier), "court");
    EXPECT_FALSE(RéécrireFichier(fichier, ""));
    EXPECT_EQ(LireFichier(fichier), "");
}

TEST(Fichiers, AbsentOuDossierNeSeLitPas)
{
    Banc banc;
    EXPECT_FALSE(LireFichier(banc.dossier / "absent").has_value());
    EXPECT_FALSE(LireFichier(banc.dossier).has_value());
}

TEST(Fichiers, DossierAbsentEstUnEchecDOuverture)
{
    Banc banc;
    EXPECT_EQ(RéécrireFichier(banc.dossier / "absent" / "a.txt", "a"), EchecFichier::Ouverture);
    banc.Ecrire("plein/x", "");
    EXPECT_EQ(RéécrireFichier(banc.dossier / "plein", "a"), EchecFichier::Ouverture);
    EXPECT_TRUE(banc.Existe("plein/x"));
}

TEST(Fichiers, DisquePleinEstUnEchecDEcriture)
{
    Banc banc;
    const auto fichier = banc.dossier / "a.txt";
    {
        const DisquePlein disque{4096};
        EXPECT_EQ(RéécrireFichier(fichier, std::string(10000, 'a')), EchecFichier::Ecriture);
        EXPECT_FALSE(RéécrireFichier(fichier, std::string(4096, 'a')));
    }
    EXPECT_FALSE(RéécrireFichier(fichier, std::string(10000, 'b')));
    EXPECT_EQ(LireFichier(fichier), std::string(10000, 'b'));
}

TEST(Fichiers, DisquePleinPendantUnBilanSeDitEtSeRattrape)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.", Texte(5000, u'a'));
    banc.Index(0);
    EnregistrerNote(banc.Choix(), 5);
    {
        const DisquePlein disque{1000};
        banc.AnnoncerBoîte(u"Tes résultats n'ont pas pu être enregistrés :…");
        EXPECT_FALSE(SauverBilan(banc.Choix()));
    }
    EXPECT_TRUE(SauverBilan(banc.Choix()));
    EXPECT_GT(banc.Lire("Léa.bil")->size(), 5000U);
}

TEST(Fichiers, LExtensionSeTrouveDansToutesLesCasses)
{
    Banc banc;
    const auto& dossier = banc.état.CheminAppli;
    EXPECT_EQ(NomRéel(dossier, u"Abel.bil"), u"Abel.bil"); // none yet: the one to make
    banc.Ecrire("Abel.BIL", "");
    EXPECT_EQ(NomRéel(dossier, u"Abel.bil"), u"Abel.BIL");
    EXPECT_EQ(NomRéel(dossier + u"/", u"Abel.bil"), u"Abel.BIL");
    EXPECT_EQ(NomRéel(dossier, u"abel.bil"), u"abel.bil"); // another pupil
    EXPECT_EQ(NomRéel(dossier, u"Abe.bil"), u"Abe.bil");
    EXPECT_EQ(NomRéel(dossier, u"Abel.bi"), u"Abel.bi");
    banc.Ecrire("Abel.Bil", "");
    EXPECT_EQ(NomRéel(dossier, u"Abel.bil"), u"Abel.BIL");
    banc.Ecrire("Abel.bil", "");
    EXPECT_EQ(NomRéel(dossier, u"Abel.bil"), u"Abel.bil");
    banc.Ecrire("Jean P.BIL", "");
    EXPECT_EQ(NomRéel(dossier, u"Jean P.bil"), u"Jean P.BIL");
    EXPECT_EQ(NomRéel(dossier, u"SansPoint"), u"SansPoint");
    EXPECT_EQ(NomRéel(dossier + u"/absent", u"Abel.bil"), u"Abel.bil");
}

TEST(Fichiers, LeMessageNommeLeFichier)
{
    EXPECT_NE(MessageEchec(EchecFichier::Ouverture, u"/a/b.bil").find(u"/a/b.bil"), Texte::npos);
    EXPECT_NE(MessageEchec(EchecFichier::Ecriture, u"/a/b.bil").find(u"/a/b.bil"), Texte::npos);
    EXPECT_NE(MessageEchec(EchecFichier::Ecriture, u"a"), MessageEchec(EchecFichier::Ouverture, u"a"));
}

} // namespace tirelune
