// Any bytes read as fields, in both modes, and as each of the six files of the lexicon; what is written of them reads
// back equal.
#include "authoring/lexicon/Lexique.h"
#include "core/Ecran.h"
#include "core/FichierChamps.h"
#include "fuzz/Agrandir.h"
#include "fuzz/Exiger.h"
#include "tests/support/PlateformeMuette.h"

#include <algorithm>
#include <cstdint>

using namespace tirelune;

namespace {

bool TientSurUneLigne(const Texte& champ)
{
    return !Contient(champ, u'\r') && !Contient(champ, u'\n');
}

void RelireEgal(const std::vector<Texte>& champs, Valeurs valeurs)
{
    const auto octets = ComposerChamps(champs);
    Exiger(octets.has_value()); // what came out of Windows-1252 goes back
    Exiger(DécouperChamps(*octets, valeurs) == champs);
}

// A grid needs a screen.
class EcranGrilles final : public Ecran {
public:
    explicit EcranGrilles(Application& application) : Ecran(application, "EcranGrilles", u"") {}

    Grid lue{*this, "lue", 0, ColonnesAuDépart};
    Grid relue{*this, "relue", 0, ColonnesAuDépart};

private:
    Arrangement Disposer() override { return {}; }
};

// What a file's rule leaves of a grid stays for good: written again, it is the same.
void EssayerLexique(std::string_view octets, Cellules écrites, int colonnes)
{
    PlateformeMuette plateforme;
    Application application{plateforme};
    EcranGrilles écran{application};
    écran.lue.Cols(colonnes);
    écran.relue.Cols(colonnes);
    if (RangerLexique(octets, écran.lue) != LectureLexique::Faite) {
        Exiger(écran.lue.Rows() == 0);
        return;
    }
    const auto champs = ChampsDuLexique(écran.lue, écrites);
    const auto réécrits = ComposerChamps(champs);
    Exiger(réécrits.has_value());
    if (!std::all_of(champs.begin(), champs.end(), TientDansUnChamp))
        return; // a quote may close its value where other cells follow than before
    Exiger(RangerLexique(*réécrits, écran.relue) == LectureLexique::Faite);
    Exiger(écran.relue.Rows() == écran.lue.Rows());
    Exiger(ChampsDuLexique(écran.relue, écrites) == champs);
    for (int rangée = 0; rangée < écran.lue.Rows(); ++rangée) {
        if (écrites == Cellules::Toutes)
            Exiger(écran.relue.TextMatrix(rangée, 0) == écran.lue.TextMatrix(rangée, 0));
    }
}

void Essayer(std::string_view octets)
{
    for (const auto écrites : {Cellules::SansLesVides, Cellules::JusquAuVide, Cellules::DeuxAuPlus})
        EssayerLexique(octets, écrites, ColonnesAuDépart);
    EssayerLexique(octets, Cellules::Toutes, ColonnesDictionnaire);

    for (const auto valeurs : {Valeurs::SurPlusieursLignes, Valeurs::SurUneLigne}) {
        const auto champs = DécouperChamps(octets, valeurs);
        if (valeurs == Valeurs::SurUneLigne)
            Exiger(std::all_of(champs.begin(), champs.end(), TientSurUneLigne));
        RelireEgal(champs, valeurs);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* données, std::size_t taille)
{
    const std::string_view octets{reinterpret_cast<const char*>(données), taille};
    Essayer(octets);
    if (VautEnGrand(octets))
        Essayer(Agrandir({}, octets));
    // Values as a screen would hand them over: the input cut at every NUL.
    std::vector<Texte> champs{Texte{}};
    for (const char octet : octets) {
        if (octet == '\0')
            champs.emplace_back();
        else
            champs.back() += static_cast<char16_t>(static_cast<unsigned char>(octet) & 0x7FU);
    }
    std::erase_if(champs, [](const Texte& champ) { return !TientDansUnChamp(champ); });
    RelireEgal(champs, Valeurs::SurPlusieursLignes);
    std::erase_if(champs, [](const Texte& champ) { return !TientSurUneLigne(champ); });
    RelireEgal(champs, Valeurs::SurUneLigne);
    return 0;
}
