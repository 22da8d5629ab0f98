#include "core/LecteurRtf.h"

#include "core/CompositionRtf.h"
#include "core/MotsRtf.h"
#include "core/TablesRtf.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace tirelune {

namespace {

using namespace rtf;

constexpr char16_t Remplacement = 0xFFFD;

// Groups below that depth are counted and share the state of the last one kept.
constexpr std::size_t ProfondeurMaximale = 10'000;
constexpr int RetraitMaximal = 31'680; // twips

// What the characters of a group are for.
enum class Destination : std::uint8_t {
    Corps,
    Polices,
    Couleurs,
    DeuxVersions, // of the same text; the one in Unicode is read
    Muette,       // read for its control words alone
    Sautée,
};

// The sign that lets readers skip a group whose first word they don't know; elsewhere it lets them skip no more than
// that word.
enum class Etoile : std::uint8_t { Aucune, EnTête, Egarée };

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
    const auto sous = [huit](std::uint64_t borne) { return (huit - borne * Uns) & ~huit; };
    const auto égal = [huit](char c) {
        const auto écart = huit ^ (static_cast<unsigned char>(c) * Uns);
        return (écart - Uns) & ~écart;
    };
    const auto trouvés = (huit | sous(0x20) | égal('\\') | égal('{') | égal('}')) & (0x80U * Uns);
    return static_cast<unsigned>(std::countr_zero(trouvés)) / 8;
}

// What a group restores at its end.
struct État {
    std::uint16_t Police = 0; // index in the fonts read; 0: the default one
    std::uint16_t Couleur = 0;
    std::uint16_t Taille = TailleParDéfaut; // half points
    std::uint16_t Repli = 1;                // characters that stand in for a \u
    std::uint8_t Drapeaux = 0;
    Destination Lieu = Destination::Corps;
    Paragraphe Allure;
};

class Lecteur {
public:
    explicit Lecteur(std::string_view octets);
    TexteRiche Lire();

private:
    void Passage();
    void Commande();
    void MotDeCommande(Etoile étoile);
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
    void Cellule();
    void Rangée();

    void Préparer();
    [[nodiscard]] Clé CléDe(unsigned attributs) const;

    const char* p_;
    const char* fin_;
    const char* débutDeGroupe_; // behind the last opening brace and the line ends there
    const char* ligneDePuce_;   // end of the first paragraph of a list item met as a bullet

    État état_;
    std::vector<État> pile_;
    std::size_t groupesEnTrop_ = 0;

    Encodage document_ = EncodageDe(Windows1252);
    TableDesPolices polices_;
    TableDesCouleurs couleurs_;
    Composition composition_;

    Clé cléDeLaCellule_ = 0;
    Paragraphe paragrapheDeLaRangée_;
    bool enRangée_ = false;
    bool celluleFinie_ = false;
    bool àPréparer_ = true; // the format may have changed, or a tab is due, before the next character
    bool visible_ = true;
};

// No byte yields more than one character.
Lecteur::Lecteur(std::string_view octets)
    : p_(octets.data()),
      fin_(p_ + std::min(octets.size(), TexteRiche::LongueurMaximale)),
      débutDeGroupe_(p_),
      ligneDePuce_(p_),
      composition_(polices_, static_cast<std::size_t>(fin_ - p_))
{
}

// From behind the brace that opens the text.
TexteRiche Lecteur::Lire()
{
    Ouvrir();
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
            if (débutDeGroupe_ == p_)
                ++débutDeGroupe_;
            ++p_;
            break;
        }
    }
    return composition_.Achever(état_.Allure, CléDe(état_.Drapeaux));
}

// A run of plain bytes, at once.
void Lecteur::Passage()
{
    if (!visible_) {
        const bool tables = état_.Lieu == Destination::Polices || état_.Lieu == Destination::Couleurs;
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
    const char* const limite = p + std::min(static_cast<std::size_t>(fin_ - p), composition_.Libres());
    char16_t* sortie = composition_.Place();
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
    composition_.Avancer(static_cast<std::size_t>(p - p_));
    p_ = p;
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
        MotDeCommande(Etoile::Aucune);
    } else {
        SymboleDeCommande();
    }
}

void Lecteur::MotDeCommande(Etoile étoile)
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
        if (étoile == Etoile::EnTête)
            SauterLeGroupe();
        return;
    }
    const bool ordinaire = entrée->Sens < Mot::TableDesPolices;
    if (étoile == Etoile::EnTête && ordinaire && entrée->Sens != Mot::SansEffet)
        SauterLeGroupe();
    else if (étoile != Etoile::Egarée || ordinaire || entrée->Sens == Mot::Binaire)
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
    switch (entrée.Sens) {
    case Mot::Attribut:
        Attribuer(entrée.Argument, actif);
        break;
    case Mot::SansSouligné:
        Attribuer(Souligné, false);
        break;
    case Mot::SansEffet:
        break;
    case Mot::Caractère:
        Caractère(entrée.Argument);
        break;
    case Mot::FinDeLigne:
        FinirLaLigne();
        break;
    case Mot::Unicode:
        if (donné)
            Unicode(paramètre);
        break;
    case Mot::Repli:
        état_.Repli = static_cast<std::uint16_t>(donné ? std::clamp(paramètre, 0, 0xFFFF) : 1);
        break;
    case Mot::Cellule:
        Cellule();
        break;
    case Mot::Rangée:
        Rangée();
        break;
    case Mot::Police:
        if (état_.Lieu == Destination::Polices)
            polices_.Commencer(paramètre);
        else
            état_.Police = polices_.Rang(paramètre);
        àPréparer_ = true;
        break;
    case Mot::Taille:
        if (!donné)
            état_.Taille = TailleParDéfaut;
        else if (paramètre > 0 && paramètre <= TailleMaximale)
            état_.Taille = static_cast<std::uint16_t>(paramètre);
        àPréparer_ = true;
        break;
    case Mot::Couleur:
        if (paramètre >= 0 && paramètre < 0xFFFF)
            état_.Couleur = static_cast<std::uint16_t>(paramètre);
        àPréparer_ = true;
        break;
    case Mot::Ordinaire:
        état_.Police = 0;
        état_.Couleur = 0;
        état_.Taille = TailleParDéfaut;
        état_.Drapeaux = 0;
        visible_ = état_.Lieu == Destination::Corps;
        àPréparer_ = true;
        break;
    case Mot::Cadrage:
        état_.Allure.Alignement = static_cast<Cadrage>(entrée.Argument);
        break;
    case Mot::RetraitGauche:
        Retirer(état_.Allure.Gauche, paramètre);
        break;
    case Mot::RetraitDroit:
        Retirer(état_.Allure.Droit, paramètre);
        break;
    case Mot::RetraitPremièreLigne:
        Retirer(état_.Allure.Première, paramètre);
        break;
    case Mot::Paragraphe:
        état_.Allure = {};
        break;
    case Mot::Rouge:
    case Mot::Vert:
    case Mot::Bleu:
        couleurs_.Composante(static_cast<unsigned>(entrée.Sens) - static_cast<unsigned>(Mot::Rouge), paramètre);
        break;
    case Mot::JeuDeCaractères:
        polices_.JeuDeCaractères(paramètre);
        break;
    case Mot::PageDePolice:
        polices_.PageDeCodes(paramètre);
        break;
    case Mot::PageDuDocument:
        if (const auto encodage = EncodageDe(paramètre); encodage.Numéro != 0)
            document_ = encodage;
        break;
    case Mot::PageFixe:
        document_ = EncodageDe(entrée.Argument);
        break;
    case Mot::PoliceParDéfaut:
        polices_.ParDéfaut(paramètre);
        àPréparer_ = true;
        break;
    case Mot::TableDesPolices:
        Entrer(Destination::Polices);
        break;
    case Mot::TableDesCouleurs:
        couleurs_.Vider();
        Entrer(Destination::Couleurs);
        break;
    case Mot::DeuxVersions:
        Entrer(Destination::DeuxVersions);
        break;
    case Mot::VersionUnicode:
        if (état_.Lieu == Destination::DeuxVersions)
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
    case '*': {
        const bool enTête = p_ - 2 == débutDeGroupe_;
        while (enTête && p_ != fin_ && (*p_ == ' ' || ClasseDe(*p_) == Classe::Ignorée))
            ++p_;
        if (fin_ - p_ > 1 && *p_ == '\\' && EstLettre(p_[1])) {
            ++p_;
            MotDeCommande(enTête ? Etoile::EnTête : Etoile::Egarée);
        }
        break;
    }
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
    débutDeGroupe_ = p_;
    if (pile_.size() < ProfondeurMaximale)
        pile_.push_back(état_);
    else
        ++groupesEnTrop_;
}

// False when the outermost group ends.
bool Lecteur::Fermer()
{
    if (état_.Lieu == Destination::Polices)
        polices_.Terminer();
    if (groupesEnTrop_ > 0) {
        --groupesEnTrop_;
        return true;
    }
    if (pile_.size() < 2)
        return false;
    état_ = pile_.back();
    pile_.pop_back();
    visible_ = état_.Lieu == Destination::Corps && (état_.Drapeaux & Invisible) == 0;
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
        état_.Lieu = Destination::Sautée;
    return ligne;
}

// AbiWord puts whole list items there: a paragraph end tells them from a bullet. No byte is looked through twice.
void Lecteur::SauterLaPuce()
{
    if (p_ < ligneDePuce_)
        return;
    const char* const début = p_;
    const auto destination = état_.Lieu;
    if (const char* const ligne = SauterLeGroupe(); ligne != nullptr) {
        ligneDePuce_ = ligne;
        p_ = début;
        état_.Lieu = destination;
    }
}

// Stand-ins for readers without Unicode: bytes, escaped or not, control words and symbols count one each; a brace
// ends them.
void Lecteur::SauterLeRepli()
{
    for (unsigned reste = état_.Repli; reste > 0 && p_ != fin_;) {
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
    const bool retour = destination == Destination::Corps && état_.Lieu == Destination::DeuxVersions;
    if (!retour && état_.Lieu != Destination::Corps)
        return;
    état_.Lieu = destination;
    visible_ = destination == Destination::Corps && (état_.Drapeaux & Invisible) == 0;
}

void Lecteur::Attribuer(unsigned drapeau, bool actif)
{
    état_.Drapeaux = static_cast<std::uint8_t>(actif ? état_.Drapeaux | drapeau : état_.Drapeaux & ~drapeau);
    visible_ = état_.Lieu == Destination::Corps && (état_.Drapeaux & Invisible) == 0;
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
        const bool complète = c == u'\n' && !celluleFinie_ && composition_.FinitParUnRetour();
        if (àPréparer_ && !complète)
            Préparer();
        composition_.Poser(c);
        if (c == u'\n')
            composition_.FinirLeParagraphe(état_.Allure);
    } else if (état_.Lieu == Destination::Polices) {
        c == u';' ? polices_.Terminer() : polices_.Nommer(c);
    } else if (état_.Lieu == Destination::Couleurs && c == u';') {
        couleurs_.Terminer();
    }
}

// A byte of text in the code page in force.
void Lecteur::Octet(unsigned octet)
{
    if (octet < 0x80) {
        Caractère(static_cast<char16_t>(octet));
        return;
    }
    const bool nom = état_.Lieu == Destination::Polices;
    const auto& propre = nom ? polices_.EncodageEnCours() : polices_.EncodageDuRang(état_.Police);
    const auto& encodage = propre.Numéro == 0 ? document_ : propre;
    if (encodage.Table != nullptr) {
        Caractère((*encodage.Table)[octet - 0x80]);
    } else if (encodage.Numéro == Utf8) {
        char16_t seconde = 0;
        Caractère(SuiteUtf8(octet, seconde));
        if (seconde != 0)
            Caractère(seconde);
    } else if (encodage.Numéro == 932 && octet >= 0xA1 && octet <= 0xDF) {
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
        if (code >= 0xD800 && code <= 0xDFFF)
            composition_.SignalerDemiePaire();
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
    if (c >= 0xD800 && c <= 0xDFFF)
        composition_.SignalerDemiePaire();
    if (état_.Lieu == Destination::Polices && c == u';')
        polices_.Nommer(c); // written out, it belongs to the name
    else
        Caractère(c);
    if (état_.Repli == 1 && p_ != fin_ && *p_ == '?') // the usual one
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
    composition_.Poser(u'\r');
    composition_.Poser(u'\n');
    composition_.FinirLeParagraphe(état_.Allure);
}

// The tab is due only once more of the row follows. It and the end of the row are nobody's marked text.
void Lecteur::Cellule()
{
    if (!visible_)
        return;
    if (celluleFinie_)
        Préparer();
    if (!enRangée_)
        paragrapheDeLaRangée_ = état_.Allure;
    enRangée_ = true;
    celluleFinie_ = true;
    àPréparer_ = true;
    cléDeLaCellule_ = CléDe(état_.Drapeaux & ~static_cast<unsigned>(Barré));
}

void Lecteur::Rangée()
{
    const bool lue = état_.Lieu == Destination::Corps || état_.Lieu == Destination::Muette;
    if (!lue || (état_.Drapeaux & Invisible) != 0)
        return;
    celluleFinie_ = false;
    composition_.PrendreFormat(CléDe(état_.Drapeaux & ~static_cast<unsigned>(Barré)));
    composition_.Poser(u'\r');
    composition_.Poser(u'\n');
    composition_.FinirLeParagraphe(enRangée_ ? paragrapheDeLaRangée_ : état_.Allure);
    enRangée_ = false;
    àPréparer_ = true;
}

void Lecteur::Préparer()
{
    if (celluleFinie_) {
        celluleFinie_ = false;
        composition_.PrendreFormat(cléDeLaCellule_);
        composition_.Poser(u'\t');
    }
    composition_.PrendreFormat(CléDe(état_.Drapeaux));
    àPréparer_ = false;
}

Clé Lecteur::CléDe(unsigned attributs) const
{
    return (attributs & Attributs) | Clé{état_.Taille} << DécalageTaille |
           Clé{couleurs_.Teinte(état_.Couleur)} << DécalageTeinte | Clé{polices_.Nom(état_.Police)} << DécalagePolice;
}

} // namespace

std::optional<TexteRiche> LireRtf(std::string_view octets)
{
    constexpr std::string_view MarqueUtf8 = "\xEF\xBB\xBF";
    const auto passerLesBlancs = [&octets] {
        octets.remove_prefix(std::min(octets.find_first_not_of(std::string_view(" \t\r\n\0", 5)), octets.size()));
    };
    if (octets.starts_with(MarqueUtf8))
        octets.remove_prefix(MarqueUtf8.size());
    passerLesBlancs();
    if (!octets.starts_with('{'))
        return std::nullopt;
    octets.remove_prefix(1);
    passerLesBlancs();
    if (!octets.starts_with("\\rtf"))
        return std::nullopt;
    return Lecteur(octets).Lire();
}

} // namespace tirelune
