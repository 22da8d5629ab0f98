#include "core/LecteurRtf.h"

#include "core/PagesDeCodes.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <unordered_map>
#include <utility>

namespace {

constexpr char16_t Remplacement = 0xFFFD;
constexpr int Windows1252 = 1252;
constexpr int Utf8 = 65001;

// Groups below that depth are counted and share the state of the last one kept.
constexpr std::size_t ProfondeurMaximale = 10'000;
constexpr std::size_t PolicesMaximales = 4'096;
constexpr std::size_t NomDePoliceMaximal = 128;
constexpr std::size_t CouleursMaximales = 65'535;
// Beyond that many different formats only bold, italic, underline and strike-through are kept.
constexpr std::size_t FormatsMaximaux = 16'384;

constexpr int TailleParDéfaut = 24; // half points
constexpr int TailleMaximale = 3'276;
constexpr int RetraitMaximal = 31'680; // twips
constexpr std::uint32_t TeinteAuto = 1U << 24U;

enum Drapeau : std::uint8_t { Gras = 1, Italique = 2, Souligné = 4, Barré = 8, Caché = 16, Supprimé = 32 };
constexpr unsigned Attributs = Gras | Italique | Souligné | Barré;
constexpr unsigned Invisible = Caché | Supprimé;

// What the characters of a group are for.
enum class Destination : std::uint8_t {
    Corps,
    Polices,
    Couleurs,
    DeuxVersions, // of the same text; the one in Unicode is read
    Muette,       // read for its control words alone
    Sautée,
};

enum class Mot : std::uint8_t {
    Attribut,   // on, or off with a parameter 0
    SansEffet,  // known, without effect, and never a reason to skip its group
    Caractère,  // argument: the character
    FinDeLigne, // argument unused, as below where none is told
    Unicode,
    Repli,
    Cellule,
    Rangée,
    Police,
    Taille,
    Couleur,
    SansSouligné,
    Ordinaire,  // \plain
    Alignement, // argument: the alignment
    RetraitGauche,
    RetraitDroit,
    RetraitPremièreLigne,
    Paragraphe, // \pard
    Rouge,
    Vert,
    Bleu,
    JeuDeCaractères,
    PageDePolice,
    PageDuDocument,
    PageFixe, // argument: the code page
    PoliceParDéfaut,
    TableDesPolices,
    TableDesCouleurs,
    DeuxVersions,
    VersionUnicode,
    PropriétésImbriquées,
    Binaire,
    Puce, // text of a list's bullet or number
    Sauter,
};

struct Entrée {
    std::string_view mot;
    Mot sens;
    char16_t argument = 0;
};

constexpr auto Mots = std::to_array<Entrée>({
    {"b", Mot::Attribut, Gras},
    {"i", Mot::Attribut, Italique},
    {"ul", Mot::Attribut, Souligné},
    {"uld", Mot::Attribut, Souligné},
    {"uldash", Mot::Attribut, Souligné},
    {"uldashd", Mot::Attribut, Souligné},
    {"uldashdd", Mot::Attribut, Souligné},
    {"uldb", Mot::Attribut, Souligné},
    {"ulhwave", Mot::Attribut, Souligné},
    {"ulldash", Mot::Attribut, Souligné},
    {"ulth", Mot::Attribut, Souligné},
    {"ulthd", Mot::Attribut, Souligné},
    {"ulthdash", Mot::Attribut, Souligné},
    {"ulthdashd", Mot::Attribut, Souligné},
    {"ulthdashdd", Mot::Attribut, Souligné},
    {"ulthldash", Mot::Attribut, Souligné},
    {"ululdbwave", Mot::Attribut, Souligné},
    {"ulw", Mot::Attribut, Souligné},
    {"ulwave", Mot::Attribut, Souligné},
    {"ulnone", Mot::SansSouligné},
    {"strike", Mot::Attribut, Barré},
    {"striked", Mot::Attribut, Barré},
    {"v", Mot::Attribut, Caché},
    {"deleted", Mot::Attribut, Supprimé},
    {"plain", Mot::Ordinaire},
    {"f", Mot::Police},
    {"fs", Mot::Taille},
    {"cf", Mot::Couleur},

    {"pard", Mot::Paragraphe},
    {"ql", Mot::Alignement, static_cast<char16_t>(Alignement::Gauche)},
    {"qr", Mot::Alignement, static_cast<char16_t>(Alignement::Droite)},
    {"qc", Mot::Alignement, static_cast<char16_t>(Alignement::Centre)},
    {"qj", Mot::Alignement, static_cast<char16_t>(Alignement::Justifié)},
    {"li", Mot::RetraitGauche},
    {"ri", Mot::RetraitDroit},
    {"fi", Mot::RetraitPremièreLigne},

    {"par", Mot::FinDeLigne},
    {"line", Mot::FinDeLigne},
    {"lbr", Mot::FinDeLigne},
    {"sect", Mot::FinDeLigne},
    {"page", Mot::FinDeLigne},
    {"column", Mot::FinDeLigne},
    {"cell", Mot::Cellule},
    {"nestcell", Mot::Cellule},
    {"row", Mot::Rangée},
    {"nestrow", Mot::Rangée},
    {"u", Mot::Unicode},
    {"uc", Mot::Repli},
    {"tab", Mot::Caractère, u'\t'},
    {"emdash", Mot::Caractère, 0x2014},
    {"endash", Mot::Caractère, 0x2013},
    {"lquote", Mot::Caractère, 0x2018},
    {"rquote", Mot::Caractère, 0x2019},
    {"ldblquote", Mot::Caractère, 0x201C},
    {"rdblquote", Mot::Caractère, 0x201D},
    {"bullet", Mot::Caractère, 0x2022},
    {"enspace", Mot::Caractère, 0x2002},
    {"emspace", Mot::Caractère, 0x2003},
    {"qmspace", Mot::Caractère, 0x2005},
    {"zwbo", Mot::Caractère, 0x200B},
    {"zwnbo", Mot::Caractère, 0x2060},
    {"zwnj", Mot::Caractère, 0x200C},
    {"zwj", Mot::Caractère, 0x200D},
    {"ltrmark", Mot::Caractère, 0x200E},
    {"rtlmark", Mot::Caractère, 0x200F},

    {"ansi", Mot::PageFixe, Windows1252},
    {"mac", Mot::PageFixe, 10000},
    {"pc", Mot::PageFixe, 437},
    {"pca", Mot::PageFixe, 850},
    {"ansicpg", Mot::PageDuDocument},
    {"deff", Mot::PoliceParDéfaut},
    {"fonttbl", Mot::TableDesPolices},
    {"fcharset", Mot::JeuDeCaractères},
    {"cpg", Mot::PageDePolice},
    {"colortbl", Mot::TableDesCouleurs},
    {"red", Mot::Rouge},
    {"green", Mot::Vert},
    {"blue", Mot::Bleu},

    {"field", Mot::SansEffet},
    {"fldrslt", Mot::SansEffet},
    {"upr", Mot::DeuxVersions},
    {"ud", Mot::VersionUnicode},
    {"nesttableprops", Mot::PropriétésImbriquées},
    {"bin", Mot::Binaire},

    // Destinations that are no part of the text. Those that always come behind \* need no mention.
    {"aftncn", Mot::Sauter},
    {"aftnsep", Mot::Sauter},
    {"aftnsepc", Mot::Sauter},
    {"annotation", Mot::Sauter},
    {"atnauthor", Mot::Sauter},
    {"atndate", Mot::Sauter},
    {"atnicn", Mot::Sauter},
    {"atnid", Mot::Sauter},
    {"atnparent", Mot::Sauter},
    {"atnref", Mot::Sauter},
    {"atntime", Mot::Sauter},
    {"atrfend", Mot::Sauter},
    {"atrfstart", Mot::Sauter},
    {"background", Mot::Sauter},
    {"bkmkend", Mot::Sauter},
    {"bkmkstart", Mot::Sauter},
    {"colorschememapping", Mot::Sauter},
    {"comment", Mot::Sauter},
    {"datafield", Mot::Sauter},
    {"datastore", Mot::Sauter},
    {"do", Mot::Sauter},
    {"docvar", Mot::Sauter},
    {"falt", Mot::Sauter},
    {"ffdeftext", Mot::Sauter},
    {"ffname", Mot::Sauter},
    {"filetbl", Mot::Sauter},
    {"fldinst", Mot::Sauter},
    {"fldtype", Mot::Sauter},
    {"fname", Mot::Sauter},
    {"fontemb", Mot::Sauter},
    {"fontfile", Mot::Sauter},
    {"footer", Mot::Sauter},
    {"footerf", Mot::Sauter},
    {"footerl", Mot::Sauter},
    {"footerr", Mot::Sauter},
    {"footnote", Mot::Sauter},
    {"formfield", Mot::Sauter},
    {"ftncn", Mot::Sauter},
    {"ftnsep", Mot::Sauter},
    {"ftnsepc", Mot::Sauter},
    {"generator", Mot::Sauter},
    {"header", Mot::Sauter},
    {"headerf", Mot::Sauter},
    {"headerl", Mot::Sauter},
    {"headerr", Mot::Sauter},
    {"info", Mot::Sauter},
    {"keycode", Mot::Sauter},
    {"latentstyles", Mot::Sauter},
    {"listoverridetable", Mot::Sauter},
    {"listtable", Mot::Sauter},
    {"listtext", Mot::Puce},
    {"nextfile", Mot::Sauter},
    {"nonesttables", Mot::Sauter},
    {"nonshppict", Mot::Sauter},
    {"objdata", Mot::Sauter},
    {"object", Mot::Sauter},
    {"panose", Mot::Sauter},
    {"pict", Mot::Sauter},
    {"pn", Mot::Sauter},
    {"pntext", Mot::Puce},
    {"pntxta", Mot::Sauter},
    {"pntxtb", Mot::Sauter},
    {"private", Mot::Sauter},
    {"revtbl", Mot::Sauter},
    {"rxe", Mot::Sauter},
    {"shpinst", Mot::Sauter},
    {"shppict", Mot::Sauter},
    {"shprslt", Mot::Sauter},
    {"stylesheet", Mot::Sauter},
    {"tc", Mot::Sauter},
    {"tcn", Mot::Sauter},
    {"template", Mot::Sauter},
    {"themedata", Mot::Sauter},
    {"txe", Mot::Sauter},
    {"userprops", Mot::Sauter},
    {"xe", Mot::Sauter},
    {"xmlnstbl", Mot::Sauter},
});

constexpr std::uint64_t AllongerClé(std::uint64_t clé, char lettre)
{
    return clé << 5U ^ (static_cast<std::uint64_t>(lettre) & 0x1FU);
}

// Perfect hash of the control words: one multiplication, one look, one comparison.
struct Dictionnaire {
    static constexpr unsigned Bits = 12;
    static constexpr std::uint8_t Vide = 0xFF;

    std::uint64_t facteur = 0;
    std::array<std::uint8_t, 1U << Bits> rangs{};
    std::array<std::uint64_t, Mots.size()> clés{};

    [[nodiscard]] constexpr std::size_t Place(std::uint64_t clé) const
    {
        return static_cast<std::size_t>(clé * facteur >> (64U - Bits));
    }
    [[nodiscard]] constexpr bool Ranger()
    {
        rangs.fill(Vide);
        for (std::size_t i = 0; i < Mots.size(); ++i) {
            std::uint64_t clé = 0;
            for (const char lettre : Mots[i].mot)
                clé = AllongerClé(clé, lettre);
            clés[i] = clé;
            auto& rang = rangs[Place(clé)];
            if (rang != Vide)
                return false;
            rang = static_cast<std::uint8_t>(i);
        }
        return true;
    }
    constexpr Dictionnaire()
    {
        static_assert(Mots.size() < Vide);
        facteur = 0x9E3779B97F4A7C15U;
        while (!Ranger())
            facteur = facteur * 6364136223846793005U + 2U; // stays odd
    }
    // The key holds twelve letters; a longer word is compared letter by letter.
    [[nodiscard]] const Entrée* Trouver(std::uint64_t clé, std::string_view mot) const
    {
        const auto rang = rangs[Place(clé)];
        if (rang == Vide || clés[rang] != clé || Mots[rang].mot.size() != mot.size())
            return nullptr;
        return mot.size() <= 12 || Mots[rang].mot == mot ? &Mots[rang] : nullptr;
    }
};
constexpr Dictionnaire LeDictionnaire;

enum class Classe : std::uint8_t { Simple, Haute, Ignorée, Barre, Ouvrante, Fermante };

constexpr auto Classes = [] {
    std::array<Classe, 256> classes{};
    for (std::size_t octet = 0x80; octet < classes.size(); ++octet)
        classes[octet] = Classe::Haute;
    classes[0] = Classe::Ignorée;
    classes['\r'] = Classe::Ignorée;
    classes['\n'] = Classe::Ignorée;
    classes['\\'] = Classe::Barre;
    classes['{'] = Classe::Ouvrante;
    classes['}'] = Classe::Fermante;
    return classes;
}();

Classe ClasseDe(char c)
{
    return Classes[static_cast<unsigned char>(c)];
}
bool EstLettre(char c)
{
    return static_cast<unsigned char>((c | 0x20) - 'a') < 26;
}
bool EstChiffre(char c)
{
    return c >= '0' && c <= '9';
}
// Of a hexadecimal digit; -1 of anything else.
constexpr auto ValeursHexadécimales = [] {
    std::array<std::int8_t, 256> valeurs{};
    valeurs.fill(-1);
    for (int i = 0; i < 16; ++i) {
        valeurs[static_cast<unsigned char>("0123456789abcdef"[i])] = static_cast<std::int8_t>(i);
        valeurs[static_cast<unsigned char>("0123456789ABCDEF"[i])] = static_cast<std::int8_t>(i);
    }
    return valeurs;
}();

int ValeurHexadécimale(char c)
{
    return ValeursHexadécimales[static_cast<unsigned char>(c)];
}

// How many of the eight bytes, from the first, are neither control characters nor braces, backslashes or high
// bytes. The borrow of a subtraction spoils only bytes behind the first one found.
unsigned PremiersSimples(const char* octets)
{
    if constexpr (std::endian::native != std::endian::little)
        return 0;
    constexpr std::uint64_t Uns = 0x0101010101010101U;
    std::uint64_t huit = 0;
    std::memcpy(&huit, octets, sizeof huit);
    const auto sous = [huit](std::uint64_t borne) {
        return (huit - borne * Uns) & ~huit;
    };
    const auto égal = [huit](char c) {
        const auto écart = huit ^ (static_cast<unsigned char>(c) * Uns);
        return (écart - Uns) & ~écart;
    };
    const auto trouvés = (huit | sous(0x20) | égal('\\') | égal('{') | égal('}')) & (0x80U * Uns);
    return static_cast<unsigned>(std::countr_zero(trouvés)) / 8;
}

// A code page of one byte to a character has a table; the others are known by their number.
struct Encodage {
    int numéro = 0; // 0: that of the document
    const MoitiéHaute* table = nullptr;
};

Encodage EncodageDe(int numéro)
{
    switch (numéro) {
    case 932:
    case 936:
    case 949:
    case 950:
    case 1361:
    case Utf8:
        return {numéro, nullptr};
    default:
        const auto* const table = TrouverPageDeCodes(numéro);
        return table == nullptr ? Encodage{} : Encodage{numéro, table};
    }
}

// Code page of a font's character set; 0 where the set tells none.
int PageDuJeu(int jeu)
{
    switch (jeu) {
    case 0:
    case 2: // symbols: most stand where Windows has its own
        return Windows1252;
    case 77:
        return 10000;
    case 78:
    case 128:
        return 932;
    case 79:
    case 129:
        return 949;
    case 80:
    case 134:
        return 936;
    case 81:
    case 136:
        return 950;
    case 85:
        return 10006;
    case 86:
        return 10081;
    case 88:
        return 10029;
    case 89:
        return 10007;
    case 130:
        return 1361;
    case 161:
        return 1253;
    case 162:
        return 1254;
    case 163:
        return 1258;
    case 177:
        return 1255;
    case 178:
        return 1256;
    case 186:
        return 1257;
    case 204:
        return 1251;
    case 222:
        return 874;
    case 238:
        return 1250;
    case 254:
        return 437;
    case 255:
        return 850;
    default:
        return 0;
    }
}

// Halves of surrogate pairs that stand alone become U+FFFD.
void RemplacerDemiesPaires(Texte& texte)
{
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const char16_t c = texte[i];
        if (c < 0xD800 || c > 0xDFFF)
            continue;
        if (c < 0xDC00 && i + 1 < texte.size() && texte[i + 1] >= 0xDC00 && texte[i + 1] <= 0xDFFF)
            ++i;
        else
            texte[i] = Remplacement;
    }
}

struct Paragraphe {
    std::int16_t gauche = 0;
    std::int16_t droit = 0;
    std::int16_t première = 0;
    Alignement alignement = Alignement::Gauche;
};

// What a group restores at its end.
struct État {
    std::uint16_t police = 0; // index in the fonts read; 0: the default one
    std::uint16_t couleur = 0;
    std::uint16_t taille = TailleParDéfaut; // half points
    std::uint16_t repli = 1;                // characters that stand in for a \u
    std::uint8_t drapeaux = 0;
    Destination destination = Destination::Corps;
    Paragraphe paragraphe;
};

// A character format in one number: attributes, size, colour, number of the font's name.
using Clé = std::uint64_t;
constexpr unsigned DécalageTaille = 4;
constexpr unsigned DécalageTeinte = 16;
constexpr unsigned DécalagePolice = 41;
constexpr Clé CléSansTable = Clé{TailleParDéfaut} << DécalageTaille | Clé{TeinteAuto} << DécalageTeinte;

class Lecteur {
public:
    explicit Lecteur(std::string_view octets);
    TexteRiche Lire();

private:
    struct PoliceLue {
        std::uint16_t nom = 0; // 0: Format's own
        Encodage encodage;
    };
    struct Parcouru { // a remembered format
        Clé clé = ~Clé{0};
        Plages<Format>::Numéro numéro = 0;
    };

    void Passage();
    void Commande();
    void MotDeCommande(bool étoile);
    void Exécuter(const Entrée& entrée, int paramètre, bool donné);
    void SymboleDeCommande();

    void Ouvrir();
    bool Fermer();
    const char* SauterLeGroupe();
    void SauterLaPuce();
    void Sauter(std::size_t octets) { p_ += std::min(octets, static_cast<std::size_t>(fin_ - p_)); }
    void SauterLeRepli();
    int LireParamètre(bool& donné);
    int LireHexadécimal();

    void Entrer(Destination destination);
    void Attribuer(unsigned drapeau, bool actif);
    void Retirer(std::int16_t& retrait, int paramètre) const;

    void Caractère(char16_t c);
    void Octet(unsigned octet);
    bool OctetSuivant(unsigned de, unsigned à, unsigned* lu = nullptr);
    char16_t SuiteUtf8(unsigned premier, char16_t& seconde);
    void Unicode(int code);
    void FinirLaLigne();
    void FinirLeParagraphe(const Paragraphe& paragraphe);
    void Cellule();
    void Rangée();

    void Préparer();
    void PrendreFormat(Clé clé);
    [[nodiscard]] Clé CléDe(unsigned attributs) const;
    [[nodiscard]] Format FormatDe(Clé clé) const;
    Plages<Format>::Numéro NuméroDe(Clé clé);
    Plages<FormatParagraphe>::Numéro NuméroDe(const Paragraphe& paragraphe);

    void Poser(char16_t c);
    void Vider();
    [[nodiscard]] std::size_t Position() const { return texte_.size() + rempli_; }
    [[nodiscard]] bool FinitParUnRetour() const;

    [[nodiscard]] const PoliceLue& PoliceEnCours() const
    {
        return polices_[état_.police == 0 ? parDéfaut_ : état_.police];
    }
    void CaractèreDePolice(char16_t c);
    void CommencerPolice(int numéro);
    void TerminerPolice();
    void ChoisirPoliceParDéfaut();
    [[nodiscard]] std::uint16_t RangDePolice(int numéro) const;
    void TerminerCouleur();

    const char* p_;
    const char* fin_;

    État état_;
    const char* ligneDePuce_; // end of the first paragraph of a list item met as a bullet

    std::vector<État> pile_;
    std::size_t groupesEnTrop_ = 0;
    bool visible_ = true;

    Encodage document_ = EncodageDe(Windows1252);
    int numéroParDéfaut_ = -1;
    std::uint16_t parDéfaut_ = 0;
    std::vector<PoliceLue> polices_{PoliceLue{}};
    std::vector<std::uint16_t> rangsDesPolices_; // by number; 0: none
    std::vector<Texte> noms_{Format{}.Police};
    std::unordered_map<Texte, std::uint16_t> rangsDesNoms_{{Format{}.Police, 0}};
    PoliceLue policeEnCours_;
    int numéroEnCours_ = -1; // font being defined; -1: none
    Texte nomEnCours_;

    std::vector<std::uint32_t> couleurs_;
    std::uint32_t teinteEnCours_ = TeinteAuto;

    // The text, by way of a small buffer.
    Texte texte_;
    std::array<char16_t, 4096> tampon_{};
    std::size_t rempli_ = 0;
    bool demiesPaires_ = false;

    bool àPréparer_ = true; // the format may have changed, or a tab is due, before the next character
    bool celluleFinie_ = false;
    Clé cléDeLaCellule_ = 0;
    bool enRangée_ = false;
    Paragraphe paragrapheDeLaRangée_;

    Plages<Format> formats_;
    Clé cléEnCours_ = ~Clé{0};
    Plages<Format>::Numéro numéroDuFormat_ = 0;
    std::size_t débutDuFormat_ = 0;
    std::array<Parcouru, 64> parcourus_{};

    Plages<FormatParagraphe> paragraphes_;
    std::size_t débutDuParagraphe_ = 0;
};

Lecteur::Lecteur(std::string_view octets)
    : p_(octets.data()), fin_(p_ + std::min(octets.size(), TexteRiche::LongueurMaximale)), ligneDePuce_(p_)
{
    // No byte yields more than one character; pages that stay unused cost nothing.
    texte_.reserve(static_cast<std::size_t>(fin_ - p_));
}

TexteRiche Lecteur::Lire()
{
    bool ouvert = true;
    while (ouvert && p_ != fin_) {
        switch (ClasseDe(*p_)) {
        case Classe::Simple:
            Passage();
            break;
        case Classe::Barre:
            ++p_;
            Commande();
            break;
        case Classe::Ouvrante:
            ++p_;
            Ouvrir();
            break;
        case Classe::Fermante:
            ++p_;
            ouvert = Fermer();
            break;
        case Classe::Haute:
            Octet(static_cast<unsigned char>(*p_++));
            break;
        case Classe::Ignorée:
            ++p_;
            break;
        }
    }
    const auto dernière = CléDe(état_.drapeaux);
    Vider();
    formats_.Ajouter(texte_.size() - débutDuFormat_, numéroDuFormat_);
    FinirLeParagraphe(état_.paragraphe);
    paragraphes_.Ajouter(1, NuméroDe(état_.paragraphe));
    if (demiesPaires_)
        RemplacerDemiesPaires(texte_);
    if (texte_.capacity() / 2 > texte_.size())
        texte_.shrink_to_fit();
    formats_.RendreLaMarge();
    return {std::move(texte_), std::move(formats_), std::move(paragraphes_), FormatDe(dernière)};
}

// A run of plain bytes, at once.
void Lecteur::Passage()
{
    if (!visible_) {
        const bool tables = état_.destination == Destination::Polices || état_.destination == Destination::Couleurs;
        do {
            if (tables)
                Caractère(static_cast<unsigned char>(*p_));
            ++p_;
        } while (p_ != fin_ && ClasseDe(*p_) == Classe::Simple);
        return;
    }
    if (àPréparer_)
        Préparer();
    const char* p = p_;
    const char* const limite = p + std::min(static_cast<std::size_t>(fin_ - p), tampon_.size() - rempli_);
    char16_t* sortie = tampon_.data() + rempli_;
    do {
        // Eight at a time; what lies behind the last plain one is overwritten later.
        const auto simples = limite - p >= 8 ? PremiersSimples(p) : 0;
        if (simples == 0) {
            *sortie++ = static_cast<unsigned char>(*p++);
            continue;
        }
        for (int i = 0; i < 8; ++i)
            sortie[i] = static_cast<unsigned char>(p[i]);
        sortie += simples;
        p += simples;
        if (simples < 8)
            break;
    } while (p != limite && ClasseDe(*p) == Classe::Simple);
    rempli_ += static_cast<std::size_t>(p - p_);
    p_ = p;
    if (rempli_ == tampon_.size())
        Vider();
}

// Behind a backslash.
void Lecteur::Commande()
{
    if (p_ == fin_)
        return;
    if (*p_ == '\'') {
        ++p_;
        if (const int octet = LireHexadécimal(); octet > 0)
            Octet(static_cast<unsigned>(octet));
    } else if (EstLettre(*p_)) {
        MotDeCommande(false);
    } else {
        SymboleDeCommande();
    }
}

void Lecteur::MotDeCommande(bool étoile)
{
    const char* const début = p_;
    std::uint64_t clé = 0;
    unsigned minuscule = 0x20;
    do {
        minuscule &= static_cast<unsigned char>(*p_);
        clé = AllongerClé(clé, *p_++);
    } while (p_ != fin_ && EstLettre(*p_));
    const auto* const entrée =
        minuscule == 0 ? nullptr
                       : LeDictionnaire.Trouver(clé, std::string_view(début, static_cast<std::size_t>(p_ - début)));

    bool donné = false;
    const int paramètre = LireParamètre(donné);
    if (entrée == nullptr) {
        if (étoile)
            SauterLeGroupe();
        return;
    }
    if (étoile && entrée->sens < Mot::TableDesPolices && entrée->sens != Mot::SansEffet)
        SauterLeGroupe();
    else
        Exécuter(*entrée, paramètre, donné);
}

// The number behind a control word, and the one blank that may follow either. Out of range: the nearest limit.
int Lecteur::LireParamètre(bool& donné)
{
    constexpr int Limite = 1'000'000'000;
    const bool négatif = fin_ - p_ > 1 && *p_ == '-' && EstChiffre(p_[1]);
    if (négatif)
        ++p_;
    int valeur = 0;
    while (p_ != fin_ && EstChiffre(*p_)) {
        if (valeur < Limite / 10)
            valeur = valeur * 10 + (*p_ - '0');
        else
            valeur = Limite;
        donné = true;
        ++p_;
    }
    if (p_ != fin_ && *p_ == ' ')
        ++p_;
    return négatif ? -valeur : valeur;
}

void Lecteur::Exécuter(const Entrée& entrée, int paramètre, bool donné)
{
    const bool actif = !donné || paramètre != 0;
    switch (entrée.sens) {
    case Mot::Attribut:
        Attribuer(entrée.argument, actif);
        break;
    case Mot::SansSouligné:
        Attribuer(Souligné, false);
        break;
    case Mot::SansEffet:
        break;
    case Mot::Caractère:
        Caractère(entrée.argument);
        break;
    case Mot::FinDeLigne:
        FinirLaLigne();
        break;
    case Mot::Unicode:
        if (donné)
            Unicode(paramètre);
        break;
    case Mot::Repli:
        état_.repli = static_cast<std::uint16_t>(donné ? std::clamp(paramètre, 0, 0xFFFF) : 1);
        break;
    case Mot::Cellule:
        Cellule();
        break;
    case Mot::Rangée:
        Rangée();
        break;
    case Mot::Police:
        if (état_.destination == Destination::Polices)
            CommencerPolice(paramètre);
        else
            état_.police = RangDePolice(paramètre);
        àPréparer_ = true;
        break;
    case Mot::Taille:
        if (!donné)
            état_.taille = TailleParDéfaut;
        else if (paramètre > 0 && paramètre <= TailleMaximale)
            état_.taille = static_cast<std::uint16_t>(paramètre);
        àPréparer_ = true;
        break;
    case Mot::Couleur:
        if (paramètre >= 0 && paramètre < static_cast<int>(CouleursMaximales))
            état_.couleur = static_cast<std::uint16_t>(paramètre);
        àPréparer_ = true;
        break;
    case Mot::Ordinaire:
        état_.police = 0;
        état_.couleur = 0;
        état_.taille = TailleParDéfaut;
        état_.drapeaux = 0;
        visible_ = état_.destination == Destination::Corps;
        àPréparer_ = true;
        break;
    case Mot::Alignement:
        état_.paragraphe.alignement = static_cast<Alignement>(entrée.argument);
        break;
    case Mot::RetraitGauche:
        Retirer(état_.paragraphe.gauche, paramètre);
        break;
    case Mot::RetraitDroit:
        Retirer(état_.paragraphe.droit, paramètre);
        break;
    case Mot::RetraitPremièreLigne:
        Retirer(état_.paragraphe.première, paramètre);
        break;
    case Mot::Paragraphe:
        état_.paragraphe = {};
        break;
    case Mot::Rouge:
    case Mot::Vert:
    case Mot::Bleu: {
        const auto décalage = 8U * (static_cast<unsigned>(entrée.sens) - static_cast<unsigned>(Mot::Rouge));
        const auto composante = static_cast<std::uint32_t>(std::clamp(paramètre, 0, 255)) << décalage;
        teinteEnCours_ = (teinteEnCours_ & ~TeinteAuto & ~(0xFFU << décalage)) | composante;
        break;
    }
    case Mot::JeuDeCaractères:
        // A code page told for the font is worth more than its character set, wherever it stands.
        if (policeEnCours_.encodage.numéro == 0)
            policeEnCours_.encodage = EncodageDe(PageDuJeu(paramètre));
        break;
    case Mot::PageDePolice:
        if (const auto encodage = EncodageDe(paramètre); encodage.numéro != 0)
            policeEnCours_.encodage = encodage;
        break;
    case Mot::PageDuDocument:
        if (const auto encodage = EncodageDe(paramètre); encodage.numéro != 0)
            document_ = encodage;
        break;
    case Mot::PageFixe:
        document_ = EncodageDe(entrée.argument);
        break;
    case Mot::PoliceParDéfaut:
        numéroParDéfaut_ = paramètre;
        ChoisirPoliceParDéfaut();
        break;
    case Mot::TableDesPolices:
        Entrer(Destination::Polices);
        break;
    case Mot::TableDesCouleurs:
        teinteEnCours_ = TeinteAuto;
        couleurs_.clear();
        Entrer(Destination::Couleurs);
        break;
    case Mot::DeuxVersions:
        Entrer(Destination::DeuxVersions);
        break;
    case Mot::VersionUnicode:
        if (état_.destination == Destination::DeuxVersions)
            Entrer(Destination::Corps);
        else
            SauterLeGroupe();
        break;
    case Mot::PropriétésImbriquées:
        Entrer(Destination::Muette);
        break;
    case Mot::Binaire:
        Sauter(static_cast<std::size_t>(std::max(paramètre, 0)));
        break;
    case Mot::Puce:
        SauterLaPuce();
        break;
    case Mot::Sauter:
        SauterLeGroupe();
        break;
    }
}

// Behind a backslash, what is no letter.
void Lecteur::SymboleDeCommande()
{
    switch (ClasseDe(*p_)) {
    case Classe::Barre:
    case Classe::Ouvrante:
    case Classe::Fermante:
        Caractère(static_cast<char16_t>(*p_++));
        return;
    case Classe::Haute:
        return; // a stray backslash: the byte is text
    default:
        break;
    }
    switch (*p_++) {
    case '*':
        while (p_ != fin_ && (*p_ == ' ' || ClasseDe(*p_) == Classe::Ignorée))
            ++p_;
        if (fin_ - p_ > 1 && *p_ == '\\' && EstLettre(p_[1])) {
            ++p_;
            MotDeCommande(true);
        }
        break;
    case '~':
        Caractère(0xA0);
        break;
    case '_':
        Caractère(u'-');
        break;
    case '\t':
        Caractère(u'\t');
        break;
    case '\r':
    case '\n':
        FinirLaLigne();
        break;
    default: // the optional hyphen among them
        break;
    }
}

// Two digits, or nothing read and -1.
int Lecteur::LireHexadécimal()
{
    if (fin_ - p_ < 2)
        return -1;
    const int haut = ValeurHexadécimale(p_[0]);
    const int bas = ValeurHexadécimale(p_[1]);
    if (haut < 0 || bas < 0)
        return -1;
    p_ += 2;
    return haut * 16 + bas;
}

void Lecteur::Ouvrir()
{
    if (pile_.size() < ProfondeurMaximale)
        pile_.push_back(état_);
    else
        ++groupesEnTrop_;
}

// False when the outermost group ends.
bool Lecteur::Fermer()
{
    if (état_.destination == Destination::Polices)
        TerminerPolice();
    if (groupesEnTrop_ > 0) {
        --groupesEnTrop_;
        return true;
    }
    if (pile_.size() < 2)
        return false;
    état_ = pile_.back();
    pile_.pop_back();
    visible_ = état_.destination == Destination::Corps && (état_.drapeaux & Invisible) == 0;
    àPréparer_ = true;
    return true;
}

// To the end of the group, its braces matched, its binary data not looked at. Tells where its first paragraph
// ends, if one does.
const char* Lecteur::SauterLeGroupe()
{
    const char* ligne = nullptr;
    std::size_t profondeur = 0;
    while (p_ != fin_) {
        const char c = *p_;
        if (c == '}') {
            if (profondeur == 0)
                break; // left to the main loop
            --profondeur;
        } else if (c == '{') {
            ++profondeur;
        } else if (c == '\\') {
            ++p_;
            if (p_ == fin_)
                break;
            const bool assez = fin_ - p_ > 3 && !EstLettre(p_[3]);
            if (assez && std::memcmp(p_, "bin", 3) == 0) {
                p_ += 3;
                bool donné = false;
                Sauter(static_cast<std::size_t>(std::max(LireParamètre(donné), 0)));
                continue;
            }
            if (assez && ligne == nullptr && std::memcmp(p_, "par", 3) == 0)
                ligne = p_;
        }
        ++p_;
    }
    if (groupesEnTrop_ == 0)
        état_.destination = Destination::Sautée;
    return ligne;
}

// AbiWord puts whole list items there: a paragraph end tells them from a bullet. No byte is looked through twice.
void Lecteur::SauterLaPuce()
{
    if (p_ < ligneDePuce_)
        return;
    const char* const début = p_;
    const auto destination = état_.destination;
    if (const char* const ligne = SauterLeGroupe(); ligne != nullptr) {
        ligneDePuce_ = ligne;
        p_ = début;
        état_.destination = destination;
    }
}

// Stand-ins for readers without Unicode: bytes, escaped or not, control words and symbols count one each; a brace
// ends them.
void Lecteur::SauterLeRepli()
{
    for (unsigned reste = état_.repli; reste > 0 && p_ != fin_;) {
        const auto classe = ClasseDe(*p_);
        if (classe == Classe::Ouvrante || classe == Classe::Fermante)
            return;
        if (classe == Classe::Ignorée) {
            ++p_;
            continue;
        }
        --reste;
        if (*p_++ != '\\' || p_ == fin_)
            continue;
        if (!EstLettre(*p_)) {
            if (*p_++ == '\'')
                LireHexadécimal();
            continue;
        }
        const char* const début = p_;
        while (p_ != fin_ && EstLettre(*p_))
            ++p_;
        const bool binaire = std::string_view(début, static_cast<std::size_t>(p_ - début)) == "bin";
        bool donné = false;
        const int paramètre = LireParamètre(donné);
        if (binaire)
            Sauter(static_cast<std::size_t>(std::max(paramètre, 0)));
    }
}

void Lecteur::Entrer(Destination destination)
{
    const bool retour = destination == Destination::Corps && état_.destination == Destination::DeuxVersions;
    if (!retour && état_.destination != Destination::Corps)
        return;
    état_.destination = destination;
    visible_ = destination == Destination::Corps && (état_.drapeaux & Invisible) == 0;
}

void Lecteur::Attribuer(unsigned drapeau, bool actif)
{
    état_.drapeaux = static_cast<std::uint8_t>(actif ? état_.drapeaux | drapeau : état_.drapeaux & ~drapeau);
    visible_ = état_.destination == Destination::Corps && (état_.drapeaux & Invisible) == 0;
    àPréparer_ = true;
}

void Lecteur::Retirer(std::int16_t& retrait, int paramètre) const
{
    if (paramètre >= -RetraitMaximal && paramètre <= RetraitMaximal)
        retrait = static_cast<std::int16_t>(paramètre);
}

void Lecteur::Caractère(char16_t c)
{
    if (visible_) {
        // A line feed that completes a pair takes the format of the first half.
        const bool complète = c == u'\n' && !celluleFinie_ && FinitParUnRetour();
        if (àPréparer_ && !complète)
            Préparer();
        Poser(c);
        if (c == u'\n')
            FinirLeParagraphe(état_.paragraphe);
    } else if (état_.destination == Destination::Polices) {
        CaractèreDePolice(c);
    } else if (état_.destination == Destination::Couleurs && c == u';') {
        TerminerCouleur();
    }
}

// A byte of text in the code page in force.
void Lecteur::Octet(unsigned octet)
{
    if (octet < 0x80) {
        Caractère(static_cast<char16_t>(octet));
        return;
    }
    const auto& police = état_.destination == Destination::Polices ? policeEnCours_ : PoliceEnCours();
    const auto& encodage = police.encodage.numéro == 0 ? document_ : police.encodage;
    if (encodage.table != nullptr) {
        Caractère((*encodage.table)[octet - 0x80]);
    } else if (encodage.numéro == Utf8) {
        char16_t seconde = 0;
        Caractère(SuiteUtf8(octet, seconde));
        if (seconde != 0)
            Caractère(seconde);
    } else if (encodage.numéro == 932 && octet >= 0xA1 && octet <= 0xDF) {
        Caractère(static_cast<char16_t>(0xFF61 + (octet - 0xA1))); // half-width katakana, one byte each
    } else {
        if (octet != 0x80 && octet != 0xFF)
            OctetSuivant(0x30, 0xFE); // the pair stands for one character
        Caractère(Remplacement);
    }
}

// Reads the next byte of text, escaped or raw, when it lies within the limits.
bool Lecteur::OctetSuivant(unsigned de, unsigned à, unsigned* lu)
{
    const char* const début = p_;
    while (p_ != fin_ && ClasseDe(*p_) == Classe::Ignorée)
        ++p_;
    unsigned octet = 0;
    if (fin_ - p_ > 3 && p_[0] == '\\' && p_[1] == '\'') {
        p_ += 2;
        octet = static_cast<unsigned>(std::max(LireHexadécimal(), 0));
    } else if (p_ != fin_ && (ClasseDe(*p_) == Classe::Simple || ClasseDe(*p_) == Classe::Haute)) {
        octet = static_cast<unsigned char>(*p_++);
    }
    if (octet < de || octet > à) {
        p_ = début;
        return false;
    }
    if (lu != nullptr)
        *lu = octet;
    return true;
}

// The rest of a UTF-8 sequence; `seconde` gets the low half of a surrogate pair.
char16_t Lecteur::SuiteUtf8(unsigned premier, char16_t& seconde)
{
    const unsigned suites = premier >= 0xF0 ? 3 : premier >= 0xE0 ? 2 : 1;
    if (premier < 0xC2 || premier > 0xF4)
        return Remplacement;
    std::uint32_t code = premier & (0x3FU >> suites);
    for (unsigned i = 0; i < suites; ++i) {
        unsigned octet = 0;
        if (!OctetSuivant(0x80, 0xBF, &octet))
            return Remplacement;
        code = code << 6U | (octet & 0x3FU);
    }
    if (code > 0x10FFFF || (suites == 2 && code < 0x800) || (suites == 3 && code < 0x10000))
        return Remplacement;
    if (code < 0x10000) {
        demiesPaires_ = demiesPaires_ || (code >= 0xD800 && code <= 0xDFFF);
        return static_cast<char16_t>(code);
    }
    seconde = static_cast<char16_t>(0xDC00 + (code & 0x3FFU));
    return static_cast<char16_t>(0xD7C0 + (code >> 10U));
}

void Lecteur::Unicode(int code)
{
    if (code < 0)
        code += 0x10000; // signed 16 bits
    const auto c = code < 0 || code > 0xFFFF ? Remplacement : static_cast<char16_t>(code);
    demiesPaires_ = demiesPaires_ || (c >= 0xD800 && c <= 0xDFFF);
    if (état_.destination == Destination::Polices && c == u';')
        nomEnCours_ += c; // written out, it belongs to the name
    else
        Caractère(c);
    if (état_.repli == 1 && p_ != fin_ && *p_ == '?') // the usual one
        ++p_;
    else
        SauterLeRepli();
}

void Lecteur::FinirLaLigne()
{
    if (!visible_)
        return;
    if (àPréparer_)
        Préparer();
    Poser(u'\r');
    Poser(u'\n');
    FinirLeParagraphe(état_.paragraphe);
}

void Lecteur::FinirLeParagraphe(const Paragraphe& paragraphe)
{
    const auto position = Position();
    if (position == débutDuParagraphe_)
        return;
    paragraphes_.Ajouter(position - débutDuParagraphe_, NuméroDe(paragraphe));
    débutDuParagraphe_ = position;
}

// The tab is due only once more of the row follows. It and the end of the row are nobody's marked text.
void Lecteur::Cellule()
{
    if (!visible_)
        return;
    if (celluleFinie_)
        Préparer();
    if (!enRangée_)
        paragrapheDeLaRangée_ = état_.paragraphe;
    enRangée_ = true;
    celluleFinie_ = true;
    àPréparer_ = true;
    cléDeLaCellule_ = CléDe(état_.drapeaux & ~static_cast<unsigned>(Barré));
}

void Lecteur::Rangée()
{
    const bool lue = état_.destination == Destination::Corps || état_.destination == Destination::Muette;
    if (!lue || (état_.drapeaux & Invisible) != 0)
        return;
    celluleFinie_ = false;
    PrendreFormat(CléDe(état_.drapeaux & ~static_cast<unsigned>(Barré)));
    Poser(u'\r');
    Poser(u'\n');
    FinirLeParagraphe(enRangée_ ? paragrapheDeLaRangée_ : état_.paragraphe);
    enRangée_ = false;
    àPréparer_ = true;
}

void Lecteur::Préparer()
{
    if (celluleFinie_) {
        celluleFinie_ = false;
        PrendreFormat(cléDeLaCellule_);
        Poser(u'\t');
    }
    PrendreFormat(CléDe(état_.drapeaux));
    àPréparer_ = false;
}

void Lecteur::PrendreFormat(Clé clé)
{
    if (clé == cléEnCours_)
        return;
    const auto position = Position();
    formats_.Ajouter(position - débutDuFormat_, numéroDuFormat_);
    débutDuFormat_ = position;
    cléEnCours_ = clé;
    numéroDuFormat_ = NuméroDe(clé);
}

Clé Lecteur::CléDe(unsigned attributs) const
{
    const Clé teinte = état_.couleur < couleurs_.size() ? couleurs_[état_.couleur] : TeinteAuto;
    return (attributs & Attributs) | Clé{état_.taille} << DécalageTaille | teinte << DécalageTeinte |
           Clé{PoliceEnCours().nom} << DécalagePolice;
}

Format Lecteur::FormatDe(Clé clé) const
{
    const auto teinte = static_cast<std::uint32_t>(clé >> DécalageTeinte & (2U * TeinteAuto - 1));
    return {.Police = noms_[clé >> DécalagePolice],
            .Taille = static_cast<double>(clé >> DécalageTaille & 0xFFFU) / 2,
            .Teinte = teinte == TeinteAuto ? CouleurAuto : Couleur{teinte},
            .Gras = (clé & Gras) != 0,
            .Italique = (clé & Italique) != 0,
            .Souligné = (clé & Souligné) != 0,
            .Barré = (clé & Barré) != 0};
}

Plages<Format>::Numéro Lecteur::NuméroDe(Clé clé)
{
    auto& parcouru = parcourus_[(clé * 0x9E3779B97F4A7C15U >> 58U)];
    if (parcouru.clé != clé) {
        const bool plein = formats_.NombreDeValeurs() >= FormatsMaximaux;
        parcouru = {clé, formats_.Interner(FormatDe(plein ? (clé & Attributs) | CléSansTable : clé))};
    }
    return parcouru.numéro;
}

Plages<FormatParagraphe>::Numéro Lecteur::NuméroDe(const Paragraphe& paragraphe)
{
    return paragraphes_.Interner({.Alignement_ = paragraphe.alignement,
                                  .RetraitGauche = paragraphe.gauche,
                                  .RetraitDroit = paragraphe.droit,
                                  .RetraitPremièreLigne = paragraphe.première});
}

void Lecteur::Poser(char16_t c)
{
    tampon_[rempli_++] = c;
    if (rempli_ == tampon_.size())
        Vider();
}

void Lecteur::Vider()
{
    texte_.append(tampon_.data(), rempli_);
    rempli_ = 0;
}

bool Lecteur::FinitParUnRetour() const
{
    if (rempli_ > 0)
        return tampon_[rempli_ - 1] == u'\r';
    return !texte_.empty() && texte_.back() == u'\r';
}

void Lecteur::CaractèreDePolice(char16_t c)
{
    if (c == u';')
        TerminerPolice();
    else if (numéroEnCours_ >= 0 && nomEnCours_.size() < NomDePoliceMaximal)
        nomEnCours_ += c;
}

void Lecteur::CommencerPolice(int numéro)
{
    TerminerPolice();
    numéroEnCours_ = numéro >= 0 && numéro <= 0xFFFF ? numéro : -1;
}

void Lecteur::TerminerPolice()
{
    const auto numéro = static_cast<std::size_t>(numéroEnCours_);
    if (numéroEnCours_ >= 0 && polices_.size() < PolicesMaximales) {
        RemplacerDemiesPaires(nomEnCours_);
        auto nom = Rogner(nomEnCours_);
        if (!nom.empty())
            policeEnCours_.nom = rangsDesNoms_.try_emplace(nom, static_cast<std::uint16_t>(noms_.size())).first->second;
        if (policeEnCours_.nom == noms_.size())
            noms_.push_back(std::move(nom));
        if (rangsDesPolices_.size() <= numéro)
            rangsDesPolices_.resize(numéro + 1);
        rangsDesPolices_[numéro] = static_cast<std::uint16_t>(polices_.size());
        polices_.push_back(policeEnCours_);
        ChoisirPoliceParDéfaut();
    }
    numéroEnCours_ = -1;
    nomEnCours_.clear();
    policeEnCours_ = {};
}

void Lecteur::ChoisirPoliceParDéfaut()
{
    parDéfaut_ = RangDePolice(numéroParDéfaut_);
    àPréparer_ = true;
}

std::uint16_t Lecteur::RangDePolice(int numéro) const
{
    const bool connu = numéro >= 0 && static_cast<std::size_t>(numéro) < rangsDesPolices_.size();
    return connu ? rangsDesPolices_[static_cast<std::size_t>(numéro)] : std::uint16_t{0};
}

void Lecteur::TerminerCouleur()
{
    if (couleurs_.size() < CouleursMaximales)
        couleurs_.push_back(teinteEnCours_);
    teinteEnCours_ = TeinteAuto;
}

} // namespace

std::optional<TexteRiche> LireRtf(std::string_view octets)
{
    constexpr std::string_view MarqueUtf8 = "\xEF\xBB\xBF";
    if (octets.starts_with(MarqueUtf8))
        octets.remove_prefix(MarqueUtf8.size());
    octets.remove_prefix(std::min(octets.find_first_not_of(std::string_view(" \t\r\n\0", 5)), octets.size()));
    if (!octets.starts_with("{\\rtf"))
        return std::nullopt;
    return Lecteur(octets).Lire();
}
