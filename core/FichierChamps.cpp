#include "core/FichierChamps.h"

#include "core/Windows1252.h"

#include <algorithm>

namespace tirelune {

namespace {

// One pass: each byte is looked at a fixed number of times, whatever the file holds.
class Découpage {
public:
    Découpage(std::string_view octets, Valeurs valeurs) : octets_(octets), valeurs_(valeurs) {}

    // The next value; nothing at the end.
    std::optional<std::string_view> Suivante()
    {
        place_ = Passer(" \t\r\n", place_);
        if (place_ == octets_.size())
            return std::nullopt;
        const auto valeur =
            octets_[place_] == '"' || valeurs_ == Valeurs::SurUneLigne ? JusquAuGuillemet() : JusquALaVirgule();
        place_ = Passer(" \t", place_);
        if (place_ < octets_.size() && octets_[place_] == ',')
            ++place_;
        return valeur;
    }

private:
    std::size_t Passer(const char* signes, std::size_t place) const
    {
        return std::min(octets_.find_first_not_of(signes, place), octets_.size());
    }

    std::string_view Entre(std::size_t début, std::size_t fin) const { return octets_.substr(début, fin - début); }

    // Where a value that no quote closes ends.
    std::size_t Limite()
    {
        if (valeurs_ == Valeurs::SurPlusieursLignes)
            return octets_.size();
        if (finDeLigne_ <= place_) // a value never starts on a line end
            finDeLigne_ = std::min(octets_.find_first_of("\r\n", place_), octets_.size());
        return finDeLigne_;
    }

    // The next quote before the limit, or the limit, where the value would end anyway.
    std::size_t Guillemet(std::size_t place, std::size_t limite) const
    {
        while (place < limite && octets_[place] != '"')
            ++place;
        return place;
    }

    bool FinitLaLigne(std::size_t place) const
    {
        return place >= octets_.size() || octets_[place] == '\r' || octets_[place] == '\n';
    }

    // The place of the quote behind a comma, when they come next; the limit counts as one.
    std::optional<std::size_t> OuvertureSuivante(std::size_t place, std::size_t limite) const
    {
        if (place >= limite || octets_[place] != ',')
            return std::nullopt;
        const auto suite = Passer(" \t", place + 1);
        return suite >= limite || octets_[suite] == '"' ? std::optional{std::min(suite, limite)} : std::nullopt;
    }

    // What stands behind a quote tells whether it closes its value. A quote behind the comma that is itself followed
    // by a line end closes rather than opens.
    bool Ferme(std::size_t guillemet, std::size_t limite) const
    {
        const auto suite = Passer(" \t", guillemet + 1);
        if (FinitLaLigne(suite))
            return true;
        const auto ouverture = OuvertureSuivante(suite, limite);
        if (!ouverture || *ouverture == limite || FinitLaLigne(Passer(" \t", *ouverture + 1)))
            return false;
        const auto fermeture = Guillemet(*ouverture + 1, limite);
        const auto après = Passer(" \t", std::min(fermeture + 1, octets_.size()));
        return fermeture == limite || FinitLaLigne(après) || OuvertureSuivante(après, limite).has_value();
    }

    std::string_view JusquAuGuillemet()
    {
        const auto limite = Limite();
        const bool ouvert = octets_[place_] == '"';
        const auto début = ouvert ? place_ + 1 : place_;
        auto fin = Guillemet(début, limite);
        while (fin < limite && !Ferme(fin, limite))
            fin = Guillemet(fin + 1, limite);
        place_ = std::min(fin + 1, limite);
        const auto valeur = Entre(début, fin);
        return ouvert || fin < limite ? valeur : SansBlancsFinaux(valeur);
    }

    std::string_view JusquALaVirgule()
    {
        const auto début = place_;
        place_ = std::min(octets_.find_first_of(",\r\n", place_), octets_.size());
        return SansBlancsFinaux(Entre(début, place_));
    }

    static std::string_view SansBlancsFinaux(std::string_view valeur)
    {
        return valeur.substr(0, valeur.find_last_not_of(" \t") + 1);
    }

    std::string_view octets_;
    Valeurs valeurs_;
    std::size_t place_ = 0;
    std::size_t finDeLigne_ = 0;
};

// Nothing when there are more.
std::optional<std::vector<Texte>> Découper(std::string_view octets, Valeurs valeurs, std::size_t maximum)
{
    std::vector<Texte> champs;
    Découpage découpage{octets, valeurs};
    while (const auto valeur = découpage.Suivante()) {
        if (champs.size() == maximum)
            return std::nullopt;
        champs.push_back(DepuisWindows1252(*valeur));
    }
    return champs;
}

} // namespace

std::vector<Texte> DécouperChamps(std::string_view octets, Valeurs valeurs)
{
    return *Découper(octets, valeurs, octets.size()); // no field without a byte
}

Lecture<std::vector<Texte>> DécouperFichier(std::string_view octets, Valeurs valeurs)
{
    auto champs = Découper(octets, valeurs, ChampsDUnFichier);
    if (!champs)
        return EchecLecture::TropGrand;
    return std::move(*champs);
}

Lecture<std::vector<Texte>> LireChamps(const Chemin& fichier, Valeurs valeurs)
{
    const auto octets = LireFichier(fichier, TailleDUnFichierDeChamps);
    if (!octets)
        return octets.Echec;
    return DécouperFichier(*octets, valeurs);
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
