#include "core/Fichiers.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <system_error>

#if __has_include(<fcntl.h>) && __has_include(<unistd.h>)
#include <fcntl.h>
#include <unistd.h>
#endif

namespace tirelune {

namespace {

struct Fermeture {
    void operator()(std::FILE* fichier) const { std::fclose(fichier); }
};
using Flux = std::unique_ptr<std::FILE, Fermeture>;

// Never waits for whoever should write at the other end, should the file have become a pipe meanwhile.
Flux OuvrirEnLecture(const Chemin& fichier)
{
#if __has_include(<fcntl.h>) && __has_include(<unistd.h>)
    const int descripteur = ::open(fichier.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    return Flux{descripteur < 0 ? nullptr : ::fdopen(descripteur, "rb")};
#else
    return Flux{std::fopen(fichier.c_str(), "rb")};
#endif
}

bool PousserSurLeDisque(std::FILE* fichier)
{
#if __has_include(<unistd.h>)
    return ::fsync(::fileno(fichier)) == 0;
#else
    return fichier != nullptr;
#endif
}

} // namespace

Texte NomRéel(VueTexte dossier, VueTexte nom)
{
    std::error_code erreur;
    if (std::filesystem::exists(EnChemin(Joindre(dossier, nom)), erreur))
        return Texte{nom};
    const auto point = std::min(nom.rfind(u'.'), nom.size());
    const auto racine = nom.substr(0, point);
    const auto extension = Minuscules(nom.substr(point));
    std::optional<Texte> trouvé;
    std::filesystem::directory_iterator entrée{EnChemin(dossier), erreur};
    for (; !erreur && entrée != std::filesystem::directory_iterator{}; entrée.increment(erreur)) {
        auto autre = DepuisChemin(entrée->path().filename());
        const bool même = autre.size() == nom.size() && autre.starts_with(racine) &&
                          Minuscules(VueTexte{autre}.substr(point)) == extension;
        if (même && (!trouvé || autre < *trouvé)) // of several, always the same one
            trouvé = std::move(autre);
    }
    return trouvé.value_or(Texte{nom});
}

Lecture<std::string> LireFichier(const Chemin& fichier, std::uintmax_t limite)
{
    std::error_code erreur;
    const auto état = std::filesystem::status(fichier, erreur);
    if (état.type() == std::filesystem::file_type::not_found)
        return EchecLecture::Absent;
    if (!std::filesystem::status_known(état) || état.type() == std::filesystem::file_type::unknown)
        return EchecLecture::Illisible;
    if (!std::filesystem::is_regular_file(état))
        return EchecLecture::PasUnFichier;
    const auto taille = std::filesystem::file_size(fichier, erreur);
    if (!erreur && taille > limite)
        return EchecLecture::TropGrand;
    const auto flux = OuvrirEnLecture(fichier);
    if (!flux)
        return EchecLecture::Illisible;
    std::string contenu;
    if (!erreur)
        contenu.reserve(static_cast<std::size_t>(taille));
    std::array<char, 1 << 16> tampon{};
    while (const auto lus = std::fread(tampon.data(), 1, tampon.size(), flux.get())) {
        contenu.append(tampon.data(), lus);
        if (contenu.size() > limite) // it grows, or hides its size
            return EchecLecture::TropGrand;
    }
    if (std::ferror(flux.get()) != 0)
        return EchecLecture::Illisible;
    return contenu;
}

std::optional<EchecFichier> RéécrireFichier(const Chemin& fichier, std::string_view contenu)
{
    std::error_code ignorée; // a missing file is no error
    const auto avant = std::filesystem::status(fichier, ignorée);
    std::filesystem::remove(fichier, ignorée);
    const Flux flux{std::fopen(fichier.c_str(), "wb")};
    if (!flux)
        return EchecFichier::Ouverture;
    if (std::filesystem::is_regular_file(avant))
        std::filesystem::permissions(fichier, avant.permissions(), ignorée); // some shares have none
    std::setvbuf(flux.get(), nullptr, _IONBF, 0);                            // the content is in memory already
    const bool écrit = contenu.empty() || std::fwrite(contenu.data(), contenu.size(), 1, flux.get()) == 1;
    if (!écrit || !PousserSurLeDisque(flux.get()))
        return EchecFichier::Ecriture;
    return std::nullopt;
}

void PousserDossier([[maybe_unused]] const Chemin& dossier)
{
#if __has_include(<unistd.h>)
    const int ouvert = ::open(dossier.c_str(), O_RDONLY | O_CLOEXEC);
    if (ouvert < 0)
        return;
    static_cast<void>(::fsync(ouvert)); // some shares can't
    ::close(ouvert);
#endif
}

VueTexte CauseDe(EchecFichier échec)
{
    switch (échec) {
    case EchecFichier::Ouverture:
        return u"Vérifiez que son dossier existe et que vous avez le droit d'y écrire.";
    case EchecFichier::Ecriture:
        return u"Le disque est peut-être plein ou n'est plus accessible.";
    case EchecFichier::Contenu:
        break;
    }
    return u"Il ne peut pas garder un des caractères.";
}

Texte MessageEchec(EchecFichier échec, VueTexte fichier)
{
    return (u"Impossible d'enregistrer le fichier\n" + Texte{fichier} + u"\n\n").append(CauseDe(échec)) +
           u"\nRien n'est perdu tant que le texte reste ouvert : recommencez quand ce sera réparé, ou enregistrez "
           u"ailleurs.";
}

Texte MessageLecture(EchecLecture échec, VueTexte fichier)
{
    const auto cause = [échec]() -> VueTexte {
        switch (échec) {
        case EchecLecture::Absent:
            return u"Il n'existe pas, ou son dossier n'est plus accessible.";
        case EchecLecture::PasUnFichier:
            return u"Ce n'est pas un fichier ordinaire.";
        case EchecLecture::TropGrand:
            return u"Il est trop grand.";
        case EchecLecture::Illisible:
            break;
        }
        return u"Le disque n'est plus accessible, ou il est interdit de lire ce fichier.";
    };
    return (u"Impossible de lire le fichier\n" + Texte{fichier} + u"\n\n").append(cause());
}

} // namespace tirelune
