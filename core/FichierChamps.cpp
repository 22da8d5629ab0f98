#include "core/FichierChamps.h"

#include "core/Fichiers.h"
#include "core/Windows1252.h"

#include <algorithm>

namespace tirelune {

namespace {

bool EstFinDeLigne(char c)
{
    return c == '\r' || c == '\n';
}

class Découpage {
public:
    Découpage(std::string_view octets, Valeurs valeurs) : reste_(octets), valeurs_(valeurs) {}

    std::vector<Texte> Champs()
    {
        std::vector<Texte> champs;
        while (PasserVides())
            champs.push_back(DepuisWindows1252(reste_.front() == '"' ? EntreGuillemets() : SansGuillemets()));
        return champs;
    }

private:
    // False at the end.
    bool PasserVides()
    {
        const auto début = reste_.find_first_not_of(" \t\r\n");
        reste_.remove_prefix(std::min(début, reste_.size()));
        return !reste_.empty();
    }

    // What follows a value up to its comma or line end, taken away.
    void PasserSéparateur()
    {
        const auto blancs = reste_.find_first_not_of(" \t");
        reste_.remove_prefix(std::min(blancs, reste_.size()));
        if (!reste_.empty() && reste_.front() == ',')
            reste_.remove_prefix(1);
    }

    bool ValeurFinie(std::size_t place) const
    {
        const auto suite = reste_.find_first_not_of(" \t", place);
        return suite == std::string_view::npos || reste_[suite] == ',' || EstFinDeLigne(reste_[suite]);
    }

    std::string_view EntreGuillemets()
    {
        reste_.remove_prefix(1);
        const auto finDeLigne =
            valeurs_ == Valeurs::SurUneLigne ? reste_.find_first_of("\r\n") : std::string_view::npos;
        const auto limite = std::min(finDeLigne, reste_.size());
        auto fin = reste_.find('"');
        while (fin < limite && !ValeurFinie(fin + 1))
            fin = reste_.find('"', fin + 1);
        fin = std::min(fin, limite);
        const auto valeur = reste_.substr(0, fin);
        reste_.remove_prefix(fin < limite ? fin + 1 : limite);
        PasserSéparateur();
        return valeur;
    }

    std::string_view SansGuillemets()
    {
        const auto fin =
            std::min(reste_.find_first_of(valeurs_ == Valeurs::SurUneLigne ? "\r\n" : ",\r\n"), reste_.size());
        const auto valeur = reste_.substr(0, reste_.find_last_not_of(" \t", fin == 0 ? 0 : fin - 1) + 1);
        reste_.remove_prefix(fin);
        PasserSéparateur();
        return valeur.substr(0, std::min(valeur.size(), fin));
    }

    std::string_view reste_;
    Valeurs valeurs_;
};

} // namespace

std::vector<Texte> DécouperChamps(std::string_view octets, Valeurs valeurs)
{
    return Découpage{octets, valeurs}.Champs();
}

std::optional<std::vector<Texte>> LireChamps(const Chemin& fichier, Valeurs valeurs)
{
    const auto octets = LireFichier(fichier);
    if (!octets)
        return std::nullopt;
    return DécouperChamps(*octets, valeurs);
}

std::optional<std::string> ComposerChamps(const std::vector<Texte>& champs)
{
    std::string octets;
    for (const auto& champ : champs) {
        const auto valeur = EnWindows1252(champ);
        if (!valeur)
            return std::nullopt;
        octets += '"' + *valeur + "\"\r\n";
    }
    return octets;
}

bool TientDansUnChamp(VueTexte valeur)
{
    return TientEnWindows1252(valeur) && !Contient(valeur, u'"');
}

} // namespace tirelune
