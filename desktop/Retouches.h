// Where a text has changed since it was last shown: disjoint places, in order.
#pragma once
#include <cstddef>
#include <vector>

namespace tirelune {

struct Retouche {
    std::size_t Début;    // in the text as it is now
    std::size_t Anciens;  // characters shown there
    std::size_t Nouveaux; // characters that stand there now
    friend bool operator==(const Retouche&, const Retouche&) = default;
};

class Retouches {
public:
    // `retirés` characters at `début` of the present text gave way to `ajoutés`.
    void Noter(std::size_t début, std::size_t retirés, std::size_t ajoutés);
    // The same, made where the text is shown: it stands there already, and is to be looked at again.
    void NoterMontrée(std::size_t début, std::size_t retirés, std::size_t ajoutés);
    [[nodiscard]] bool Vides() const { return liste_.empty(); }
    // Hands them over, first to last, and forgets them. Neighbours that change no length come as one: what lies
    // between them is looked at again, which is cheaper than laying a paragraph out twice.
    std::vector<Retouche> Prendre();

private:
    std::vector<Retouche> liste_;
};

} // namespace tirelune
