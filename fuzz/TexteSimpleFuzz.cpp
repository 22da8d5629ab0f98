// Any bytes as plain text, as what is pasted, and as the list of recent files.
#include "authoring/FichiersRécents.h"
#include "core/Collage.h"
#include "core/FichierChamps.h"
#include "core/LecteurRtf.h"
#include "core/RichTextBox.h"
#include "core/TexteSimple.h"
#include "core/Windows1252.h"
#include "fuzz/Agrandir.h"
#include "fuzz/Gestes.h"

#include <algorithm>
#include <set>

using namespace tirelune;

namespace {

class EcranLecture final : public Ecran {
public:
    explicit EcranLecture(Application& application) : Ecran(application, "EcranLecture", u"") {}

    RichTextBox rtfTexte{*this, "rtfTexte"};
    ListBox lstRécents{*this, "lstRécents"};
    ListBox lstRelus{*this, "lstRelus"};

private:
    Arrangement Disposer() override { return Colonne{rtfTexte, lstRécents, lstRelus}; }
};

// Each CR stands before an LF and each LF behind a CR.
bool LignesEnCrLf(VueTexte texte)
{
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (texte[i] == u'\r' && (i + 1 == texte.size() || texte[i + 1] != u'\n'))
            return false;
        if (texte[i] == u'\n' && (i == 0 || texte[i - 1] != u'\r'))
            return false;
    }
    return true;
}

// The same text in each encoding that carries its mark reads back equal; a NUL makes it no text.
void VérifierEncodages(const Texte& texte)
{
    std::string petit = "\xFF\xFE";
    std::string grand = "\xFE\xFF";
    for (const char16_t c : texte) {
        petit += {static_cast<char>(c & 0xFFU), static_cast<char>(c >> 8U)};
        grand += {static_cast<char>(c >> 8U), static_cast<char>(c & 0xFFU)};
    }
    const auto attendu = Contient(texte, u'\0') ? std::nullopt : std::optional{texte};
    for (const auto& octets : {petit, grand, "\xEF\xBB\xBF" + EnUtf8(texte)})
        Exiger(LireTexteSimple(octets) == attendu);
}

void VérifierCollage(VueTexte collé)
{
    const auto normal = NormaliserCollage(collé);
    Exiger(LignesEnCrLf(normal));
    Exiger(normal.size() <= 2 * collé.size());
    Exiger(std::none_of(normal.begin(), normal.end(),
                        [](char16_t c) { return c < u' ' && c != u'\t' && c != u'\r' && c != u'\n'; }));
    Exiger(NormaliserCollage(normal) == normal);
}

void VérifierRécents(EcranLecture& écran, const PlateformeFuzz& plateforme, std::string_view octets)
{
    plateforme.Poser("Récents.dat", octets);
    const auto fichier = DepuisChemin(plateforme.dossier / "Récents.dat");
    auto& récents = écran.lstRécents;
    Exiger(LireRécents(récents, fichier));
    Exiger(récents.ListCount() <= RécentsMaximum);
    const auto& chemins = récents.Eléments();
    Exiger(std::set<Texte>(chemins.begin(), chemins.end()).size() == chemins.size());
    Exiger(std::none_of(chemins.begin(), chemins.end(), [](const Texte& un) { return un.empty(); }));

    plateforme.Poser("Récents.dat", ComposerRécents(récents));
    auto& relus = écran.lstRelus;
    Exiger(LireRécents(relus, fichier));
    Exiger(relus.Eléments() == chemins);
}

void Essayer(EcranLecture& écran, const PlateformeFuzz& plateforme, std::string_view octets)
{
    const auto texte = DepuisUtf8(octets);
    Exiger(texte.size() <= octets.size());
    Exiger(DepuisUtf8(EnUtf8(texte)) == texte);
    const auto latin = DepuisWindows1252(octets);
    Exiger(latin.size() == octets.size() && EnWindows1252(latin) == octets);
    VérifierEncodages(texte);
    VérifierCollage(texte);
    VérifierCollage(latin);

    plateforme.Poser("texte.txt", octets);
    if (!LireRtf(octets) && écran.rtfTexte.LoadFile(plateforme.dossier / "texte.txt", true)) {
        Exiger(LignesEnCrLf(écran.rtfTexte.Text()));
        Exiger(écran.rtfTexte.Longueur() <= 2 * octets.size());
    }
    VérifierRécents(écran, plateforme, octets);
    VérifierEcran(écran);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* données, std::size_t taille)
{
    const std::string_view octets{reinterpret_cast<const char*>(données), taille};
    SuiteDOctets suite{{}};
    PlateformeFuzz plateforme{suite};
    Application application{plateforme};
    EcranLecture écran{application};
    Essayer(écran, plateforme, octets);
    if (VautEnGrand(octets))
        Essayer(écran, plateforme, Agrandir({}, octets));
    return 0;
}
