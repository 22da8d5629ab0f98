// Run-length list: a value for each position of a text, values told apart once and shared by number.
#pragma once
#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <utility>
#include <vector>

namespace tirelune {

// Invariant: neighbouring runs hold different values, and the runs cover [0, Longueur()) without a gap.
// Runs are found by bisection; an edit moves the runs behind it, eight bytes each. `Hachage(valeur)` is found by
// argument-dependent lookup or stands before the use of the template.
template <class Valeur>
class Plages {
public:
    using Numéro = std::uint32_t;
    static constexpr std::size_t LongueurMaximale = std::numeric_limits<std::uint32_t>::max();

    struct Plage {
        std::uint32_t Début;
        Numéro Clé;
    };

    [[nodiscard]] std::size_t Longueur() const { return longueur_; }
    [[nodiscard]] std::size_t Nombre() const { return plages_.size(); }
    [[nodiscard]] std::size_t NombreDeValeurs() const { return valeurs_.size(); }
    [[nodiscard]] const Valeur& operator[](Numéro numéro) const { return valeurs_[numéro]; }

    // The number of an equal value when there is one. Valid until the next call of Ramasser.
    Numéro Interner(const Valeur& valeur)
    {
        if (alvéoles_.size() < 2 * (valeurs_.size() + 1))
            Rehacher(std::max<std::size_t>(16, 4 * (valeurs_.size() + 1)));
        auto alvéole = Alvéole(valeur);
        if (alvéoles_[alvéole] == Libre) {
            alvéoles_[alvéole] = static_cast<Numéro>(valeurs_.size());
            valeurs_.push_back(valeur);
        }
        return alvéoles_[alvéole];
    }

    [[nodiscard]] Numéro En(std::size_t position) const
    {
        assert(position < longueur_);
        return plages_[Rang(position)].Clé;
    }
    // Where the run that holds the position starts.
    [[nodiscard]] std::size_t DébutDeLaPlage(std::size_t position) const { return plages_[Rang(position)].Début; }

    void Ajouter(std::size_t longueur, Numéro numéro)
    {
        assert(longueur <= LongueurMaximale - longueur_);
        if (longueur == 0)
            return;
        if (plages_.empty() || plages_.back().Clé != numéro)
            plages_.push_back({static_cast<std::uint32_t>(longueur_), numéro});
        longueur_ += longueur;
    }

    // The positions [début, début + longueur) make room for `nouvelle` positions of one value.
    void Remplacer(std::size_t début, std::size_t longueur, std::size_t nouvelle, Numéro numéro)
    {
        if (longueur == nouvelle && (longueur == 0 || EstUniforme(début, longueur, numéro)))
            return;
        const Plage plage{static_cast<std::uint32_t>(début), numéro};
        Substituer(début, longueur, nouvelle, std::span(&plage, nouvelle == 0 ? 0 : 1));
    }

    // Gives each run of the range the number that `change` makes of its own; `change` may intern.
    template <class Change>
    void Transformer(std::size_t début, std::size_t longueur, Change change)
    {
        std::vector<Plage> nouvelles;
        bool changées = false;
        Parcourir(début, début + longueur, [&](std::size_t de, std::size_t, Numéro numéro) {
            const Numéro nouveau = change(numéro);
            changées = changées || nouveau != numéro;
            nouvelles.push_back({static_cast<std::uint32_t>(de), nouveau});
        });
        if (changées)
            Substituer(début, longueur, longueur, nouvelles);
    }

    // Calls visite(début, fin, numéro) for each run that meets [début, fin), cut to it.
    template <class Visite>
    void Parcourir(std::size_t début, std::size_t fin, Visite visite) const
    {
        fin = std::min(fin, longueur_);
        if (début >= fin)
            return;
        for (auto rang = Rang(début); rang < plages_.size() && plages_[rang].Début < fin; ++rang)
            visite(std::max<std::size_t>(plages_[rang].Début, début), std::min(FinDeLaPlage(rang), fin),
                   plages_[rang].Clé);
    }

    // Forgets the values that no run holds, once there are enough of them to pay for the search.
    void Ramasser()
    {
        if (valeurs_.size() <= seuil_)
            return;
        std::vector<Numéro> nouveaux(valeurs_.size(), Libre);
        std::vector<Valeur> gardées;
        for (auto& plage : plages_) {
            auto& nouveau = nouveaux[plage.Clé];
            if (nouveau == Libre) {
                nouveau = static_cast<Numéro>(gardées.size());
                gardées.push_back(std::move(valeurs_[plage.Clé]));
            }
            plage.Clé = nouveau;
        }
        valeurs_ = std::move(gardées);
        seuil_ = std::max(SeuilMinimum, 2 * valeurs_.size());
        Rehacher(4 * (valeurs_.size() + 1));
    }

    void RendreLaMarge() { plages_.shrink_to_fit(); }

    friend bool operator==(const Plages& a, const Plages& b)
    {
        return a.longueur_ == b.longueur_ && std::equal(a.plages_.begin(), a.plages_.end(), b.plages_.begin(),
                                                        b.plages_.end(), [&](const Plage& x, const Plage& y) {
                                                            return x.Début == y.Début &&
                                                                   a.valeurs_[x.Clé] == b.valeurs_[y.Clé];
                                                        });
    }

private:
    static constexpr Numéro Libre = std::numeric_limits<Numéro>::max();
    static constexpr std::size_t SeuilMinimum = 64;

    [[nodiscard]] std::size_t Rang(std::size_t position) const
    {
        const auto suivante = std::upper_bound(plages_.begin(), plages_.end(), position,
                                               [](std::size_t p, const Plage& plage) { return p < plage.Début; });
        return static_cast<std::size_t>(suivante - plages_.begin()) - 1;
    }
    [[nodiscard]] std::size_t FinDeLaPlage(std::size_t rang) const
    {
        return rang + 1 < plages_.size() ? plages_[rang + 1].Début : longueur_;
    }
    [[nodiscard]] bool EstUniforme(std::size_t début, std::size_t longueur, Numéro numéro) const
    {
        const auto rang = Rang(début);
        return plages_[rang].Clé == numéro && FinDeLaPlage(rang) >= début + longueur;
    }

    // The runs `nouvelles` take the place of the positions [début, début + longueur); neighbours that turn out
    // equal become one run.
    void Substituer(std::size_t début, std::size_t longueur, std::size_t nouvelle, std::span<const Plage> nouvelles)
    {
        const auto fin = début + longueur;
        assert(fin <= longueur_ && nouvelle <= LongueurMaximale - (longueur_ - longueur));
        std::vector<Plage> remplaçantes;
        remplaçantes.reserve(nouvelles.size() + 2);
        const auto ajouter = [&](const Plage& plage) {
            if (remplaçantes.empty() || remplaçantes.back().Clé != plage.Clé)
                remplaçantes.push_back(plage);
        };
        const auto écart = static_cast<std::uint32_t>(nouvelle - longueur); // modulo 2^32, as the sums are

        // From the run that ends at or behind the start to the one that begins at or behind the end.
        const auto premier = début == 0 ? 0 : Rang(début - 1);
        if (début > 0)
            ajouter(plages_[premier]);
        for (const auto& plage : nouvelles)
            ajouter(plage);
        auto dernier = premier;
        if (!plages_.empty()) {
            if (fin < longueur_) {
                dernier = Rang(fin);
                ajouter({static_cast<std::uint32_t>(fin + écart), plages_[dernier].Clé});
                ++dernier;
            } else {
                dernier = plages_.size();
            }
        }

        if (écart != 0)
            for (auto rang = dernier; rang < plages_.size(); ++rang)
                plages_[rang].Début += écart;
        const auto enTrop = static_cast<std::ptrdiff_t>(dernier - premier);
        const auto enNombre = static_cast<std::ptrdiff_t>(remplaçantes.size());
        const auto cible = plages_.begin() + static_cast<std::ptrdiff_t>(premier);
        const auto communes = std::min(enTrop, enNombre);
        std::copy_n(remplaçantes.begin(), communes, cible);
        if (enTrop > enNombre)
            plages_.erase(cible + communes, cible + enTrop);
        else
            plages_.insert(cible + communes, remplaçantes.begin() + communes, remplaçantes.end());
        longueur_ = longueur_ - longueur + nouvelle;
    }

    [[nodiscard]] std::size_t Alvéole(const Valeur& valeur) const
    {
        const auto masque = alvéoles_.size() - 1;
        auto alvéole = Hachage(valeur) & masque;
        while (alvéoles_[alvéole] != Libre && !(valeurs_[alvéoles_[alvéole]] == valeur))
            alvéole = (alvéole + 1) & masque;
        return alvéole;
    }
    void Rehacher(std::size_t minimum)
    {
        std::size_t taille = 16;
        while (taille < minimum)
            taille *= 2;
        alvéoles_.assign(taille, Libre);
        for (Numéro numéro = 0; numéro < valeurs_.size(); ++numéro)
            alvéoles_[Alvéole(valeurs_[numéro])] = numéro;
    }

    std::vector<Plage> plages_;
    std::size_t longueur_ = 0;
    std::vector<Valeur> valeurs_;
    std::vector<Numéro> alvéoles_; // open addressing, at most half full
    std::size_t seuil_ = SeuilMinimum;
};

} // namespace tirelune
