#include "core/Fichiers.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <system_error>

#if __has_include(<unistd.h>)
#include <unistd.h>
#endif

namespace tirelune {

namespace {

struct Fermeture {
    void operator()(std::FILE* fichier) const { std::fclose(fichier); }
};
using Flux = std::unique_ptr<std::FILE, Fermeture>;

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

std::optional<std::string> LireFichier(const Chemin& fichier)
{
    std::error_code erreur;
    if (std::filesystem::is_directory(fichier, erreur))
        return std::nullopt;
    std::ifstream flux{fichier, std::ios::binary};
    if (!flux)
        return std::nullopt;
    std::string contenu;
    if (const auto taille = std::filesystem::file_size(fichier, erreur); !erreur)
        contenu.reserve(static_cast<std::size_t>(taille));
    std::array<char, 1 << 16> tampon{};
    while (flux.read(tampon.data(), tampon.size()) || flux.gcount() > 0)
        contenu.append(tampon.data(), static_cast<std::size_t>(flux.gcount()));
    if (flux.bad())
        return std::nullopt;
    return contenu;
}

std::optional<EchecFichier> RéécrireFichier(const Chemin& fichier, std::string_view contenu)
{
    std::error_code ignorée; // a missing file is no error
    std::filesystem::remove(fichier, ignorée);
    const Flux flux{std::fopen(fichier.c_str(), "wb")};
    if (!flux)
        return EchecFichier::Ouverture;
    std::setvbuf(flux.get(), nullptr, _IONBF, 0); // the content is in memory already
    const bool écrit = contenu.empty() || std::fwrite(contenu.data(), contenu.size(), 1, flux.get()) == 1;
    if (!écrit || !PousserSurLeDisque(flux.get()))
        return EchecFichier::Ecriture;
    return std::nullopt;
}

Texte MessageEchec(EchecFichier échec, VueTexte fichier)
{
    Texte message = u"Impossible d'enregistrer le fichier\n" + Texte{fichier} + u"\n\n";
    message += échec == EchecFichier::Ouverture
                   ? u"Vérifiez que son dossier existe et que vous avez le droit d'y écrire."
                   : u"Le disque est peut-être plein ou n'est plus accessible.";
    return message + u"\nRien n'est perdu : recommencez quand ce sera réparé, ou enregistrez ailleurs.";
}

} // namespace tirelune
