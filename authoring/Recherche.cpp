#include "authoring/Recherche.h"

#include <algorithm>
#include <cassert>

namespace tirelune {

// ---- Search ------------------------------------------------------------------------------------------------------

Chercheur::Chercheur(VueTexte cherché) : cherché_(Minuscules(cherché)), replis_(cherché.size(), 0)
{
    assert(!cherché_.empty());
    for (std::size_t i = 1, repli = 0; i < cherché_.size(); ++i) {
        while (repli > 0 && cherché_[repli] != cherché_[i])
            repli = replis_[repli - 1];
        if (cherché_[repli] == cherché_[i])
            ++repli;
        replis_[i] = repli;
    }
}

bool Chercheur::Lire(char16_t caractère)
{
    const auto c = Minuscule(caractère);
    while (reconnus_ > 0 && (reconnus_ == cherché_.size() || cherché_[reconnus_] != c))
        reconnus_ = replis_[reconnus_ - 1];
    if (cherché_[reconnus_] == c)
        ++reconnus_;
    return reconnus_ == cherché_.size();
}

std::optional<std::size_t> Chercheur::Chercher(VueTexte texte, std::size_t depuis)
{
    Recommencer();
    for (auto i = depuis; i < texte.size(); ++i)
        if (Lire(texte[i]))
            return i + 1 - cherché_.size();
    return std::nullopt;
}

// ---- Replacement -------------------------------------------------------------------------------------------------

namespace {

// The text as the replacements make it, written from its start to its end. The last replacement waits, because the
// next find may begin in it.
class Réécriture {
public:
    Réécriture(const TexteRiche& source, VueTexte cherché, VueTexte remplacement)
        : source_(source),
          texte_(source.Caractères()),
          chercheur_(cherché),
          remplacement_(remplacement),
          joignant_(cherché.find(u'\n') != VueTexte::npos)
    {
    }

    std::optional<TexteRemplacé> Faire()
    {
        while (Trouver())
            Remplacer();
        if (!enAttente_)
            return std::nullopt;
        AjouterRemplacement(remplacement_.size());
        const auto curseur = résultat_.Longueur();
        Recopier(texte_.size());
        Finir();
        return TexteRemplacé{std::move(résultat_), curseur};
    }

private:
    // Reads up to behind the next find. False: the end of the text, or a find that lies in what was just put in.
    bool Trouver()
    {
        chercheur_.Recommencer();
        if (enAttente_) {
            const auto saut = chercheur_.Longueur() - 1;
            for (auto i = saut; i < remplacement_.size(); ++i)
                if (chercheur_.Lire(remplacement_[i]))
                    return false;
            lus_ += saut - std::min(saut, remplacement_.size());
        }
        while (lus_ < texte_.size())
            if (chercheur_.Lire(texte_[lus_++]))
                return true;
        return false;
    }

    // The find ends where the source was read to.
    void Remplacer()
    {
        const auto longueur = chercheur_.Longueur();
        const auto dansLaSource = lus_ - recopiés_;
        if (dansLaSource >= longueur) {
            const auto début = lus_ - longueur;
            AjouterRemplacement(remplacement_.size());
            Recopier(début);
            format_ = &source_.FormatEn(début);
            paragraphe_ = joint_.value_or(source_.ParagrapheEn(début));
        } else {
            AjouterRemplacement(remplacement_.size() - (longueur - dansLaSource));
        }
        enAttente_ = true;
        recopiés_ = lus_;
        if (joignant_) {
            const auto devant = remplacement_.empty() ? VueTexte(résultat_.Caractères()) : remplacement_;
            const bool enTête = devant.empty() || devant.ends_with(u'\n');
            joint_ = enTête ? std::nullopt : std::optional{paragraphe_};
        }
    }

    void AjouterRemplacement(std::size_t longueur)
    {
        if (enAttente_)
            résultat_.Ajouter(remplacement_.substr(0, longueur), *format_, paragraphe_);
    }

    void Recopier(std::size_t fin)
    {
        if (joint_) {
            const auto ligne = texte_.substr(0, fin).find(u'\n', recopiés_);
            const auto finDuJoint = ligne == VueTexte::npos ? fin : ligne + 1;
            Recopier(finDuJoint, *joint_);
            if (ligne != VueTexte::npos)
                joint_.reset();
        }
        source_.PourChaqueParagraphe(
            recopiés_, fin, [this](const TrancheParagraphes& tranche) { Recopier(tranche.Fin, *tranche.Style); });
    }
    void Recopier(std::size_t fin, const FormatParagraphe& paragraphe)
    {
        source_.PourChaqueTranche(recopiés_, fin, [&](const Tranche& tranche) {
            résultat_.Ajouter(texte_.substr(tranche.Début, tranche.Fin - tranche.Début), *tranche.Style, paragraphe);
        });
        recopiés_ = fin;
    }

    // The last paragraph has a format even when it is empty, and an empty text one for what will come.
    void Finir()
    {
        if (résultat_.Longueur() == 0)
            résultat_ = TexteRiche{Texte{}, *format_};
        résultat_.Ajouter(u"", *format_, joint_.value_or(source_.ParagrapheEn(texte_.size())));
    }

    const TexteRiche& source_;
    const VueTexte texte_;
    Chercheur chercheur_;
    const VueTexte remplacement_;
    const bool joignant_; // a find takes a line end with it

    TexteRiche résultat_;
    std::size_t lus_ = 0;
    std::size_t recopiés_ = 0;
    bool enAttente_ = false; // the replacement, in these formats
    const Format* format_ = nullptr;
    FormatParagraphe paragraphe_;
    std::optional<FormatParagraphe> joint_; // of the source's current line, joined to the one before
};

} // namespace

std::optional<TexteRemplacé> RemplacerTout(const TexteRiche& texte, VueTexte cherché, VueTexte remplacement)
{
    return Réécriture{texte, cherché, remplacement}.Faire();
}

} // namespace tirelune
