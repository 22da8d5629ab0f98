// Sounds that are commonly confused, as they are written, and where a text has them.
#pragma once
#include "core/Texte.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace tirelune {

// Entries 2k and 2k + 1 form a pair, of the same length: each is the replacement of the other. One that begins with a
// blank stands at the start of a word only.
inline constexpr std::array<VueTexte, 72> Graphèmes{
    u"oi",  u"io",  u"on",  u"ou",  u"gn",  u"gu",  u"ai",  u"ia",  u"oin", u"ion", u"cr",  u"gr",
    u"fr",  u"vr",  u"pr",  u"tr",  u"tr",  u"dr",  u"cl",  u"gl",  u"fl",  u"vl",  u"pl",  u"bl",
    u"ein", u"ien", u"ain", u"ian", u"a",   u"o",   u" m",  u" n",  u" b",  u" d",  u" p",  u" q",
    u" f",  u" v",  u" c",  u" s",  u"g",   u"j",   u"an",  u"on",  u"é",   u"è",   u" d",  u" t",
    u"ph",  u"ff",  u" ç",  u" s",  u"car", u"cra", u"cal", u"cla", u"pal", u"pla", u"tra", u"tar",
    u"gar", u"gra", u"par", u"pra", u"pri", u"pir", u"pli", u"pil", u"gla", u"gal", u"tir", u"tri",
};

// The places of each of them in a text, told in one pass. The text may then change, a few times: one grapheme for
// another of the same length.
class PlacesDesGraphèmes {
public:
    // The text outlives this.
    explicit PlacesDesGraphèmes(const Texte& texte);

    // The first place at or after `départ` where the text has it now.
    [[nodiscard]] std::optional<std::size_t> Chercher(std::size_t graphème, std::size_t départ) const;
    // The text has just changed there.
    void Noter(std::size_t place) { changées_.push_back(place); }

private:
    [[nodiscard]] bool EstEn(std::size_t graphème, std::size_t place) const;

    const Texte& texte_;
    std::array<std::vector<std::size_t>, Graphèmes.size()> places_; // in the text as it was
    std::vector<std::size_t> changées_;
};

} // namespace tirelune
