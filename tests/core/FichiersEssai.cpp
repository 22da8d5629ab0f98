#include "core/Fichiers.h"

#include "followup/EnregistrerNotes.h"
#include "tests/support/Banc.h"

#include <csignal>
#include <set>

#include <sys/resource.h>
#include <sys/stat.h>

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

TEST(Fichiers, LeDernierOctetSeLitAussiAuxBordsDuTampon)
{
    Banc banc;
    for (const std::size_t taille : {65'535U, 65'536U, 65'537U, 131'072U, 131'073U}) {
        const auto octets = std::string(taille - 1, 'a') + 'z';
        EXPECT_EQ(LireFichier(banc.Ecrire("a", octets)), octets);
    }
}

TEST(Fichiers, CeQuiNEstPasUnFichierNeSOuvrePas)
{
    Banc banc;
    EXPECT_FALSE(LireFichier(banc.dossier / "absent").has_value());
    EXPECT_EQ(LireFichier(banc.dossier / "absent").Echec, EchecLecture::Absent);
    EXPECT_EQ(LireFichier(banc.dossier / "absent" / "a").Echec, EchecLecture::Absent);
    EXPECT_EQ(LireFichier(banc.dossier).Echec, EchecLecture::PasUnFichier);
    EXPECT_EQ(LireFichier("/dev/zero").Echec, EchecLecture::PasUnFichier);
    const auto tube = banc.dossier / "tube"; // nobody writes into it: to open it would wait for ever
    ASSERT_EQ(::mkfifo(tube.c_str(), 0600), 0);
    EXPECT_EQ(LireFichier(tube).Echec, EchecLecture::PasUnFichier);
    std::filesystem::create_symlink(tube, banc.dossier / "lien");
    EXPECT_EQ(LireFichier(banc.dossier / "lien").Echec, EchecLecture::PasUnFichier);
    std::filesystem::create_symlink("boucle", banc.dossier / "boucle");
    EXPECT_EQ(LireFichier(banc.dossier / "boucle").Echec, EchecLecture::Illisible);
}

TEST(Fichiers, UnFichierPlusGrandQuePrévuEstRefuséSansÊtreLu)
{
    Banc banc;
    const auto fichier = banc.Ecrire("a", "12345");
    EXPECT_EQ(LireFichier(fichier, 5), "12345");
    EXPECT_EQ(LireFichier(fichier, 4).Echec, EchecLecture::TropGrand);
    std::filesystem::resize_file(fichier, std::uintmax_t{1} << 40U); // a hole: no disk is that large
    EXPECT_EQ(LireFichier(fichier).Echec, EchecLecture::TropGrand);
}

TEST(Fichiers, UneTailleCachéeNeTrompePas)
{
    const Chemin sansTaille = "/proc/self/maps"; // of 0 bytes, says the system
    EXPECT_GT(LireFichier(sansTaille)->size(), 100U);
    EXPECT_EQ(LireFichier(sansTaille, 100).Echec, EchecLecture::TropGrand);
}

TEST(Fichiers, LesDroitsSurviventALEnregistrement)
{
    using std::filesystem::perms;
    Banc banc;
    const auto fichier = banc.Ecrire("a", "ancien");
    for (const auto droits : {perms{0600}, perms{0664}, perms{0640}}) {
        std::filesystem::permissions(fichier, droits);
        EXPECT_FALSE(RéécrireFichier(fichier, "neuf"));
        EXPECT_EQ(std::filesystem::status(fichier).permissions(), droits);
    }
    EXPECT_FALSE(RéécrireFichier(banc.dossier / "neuf", "b"));
    EXPECT_EQ(std::filesystem::status(banc.dossier / "neuf").permissions() & perms{0600}, perms{0600});
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

TEST(Fichiers, LeMessageNommeLeFichierEtSaCause)
{
    std::set<Texte> messages;
    for (const auto échec : {EchecFichier::Ouverture, EchecFichier::Ecriture, EchecFichier::Contenu}) {
        const auto message = MessageEchec(échec, u"/a/b.bil");
        EXPECT_TRUE(message.starts_with(u"Impossible d'enregistrer le fichier\n/a/b.bil\n\n"));
        EXPECT_TRUE(messages.insert(message).second);
    }
    for (const auto échec :
         {EchecLecture::Absent, EchecLecture::PasUnFichier, EchecLecture::TropGrand, EchecLecture::Illisible}) {
        const auto message = MessageLecture(échec, u"/a/b.bil");
        EXPECT_TRUE(message.starts_with(u"Impossible de lire le fichier\n/a/b.bil\n\n"));
        EXPECT_TRUE(messages.insert(message).second);
    }
}

} // namespace tirelune
