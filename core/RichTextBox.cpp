#include "core/RichTextBox.h"

#include "core/Ecran.h"
#include "core/Fichiers.h"
#include "core/LecteurRtf.h"
#include "core/TexteSimple.h"

#include <algorithm>

namespace tirelune {

namespace {

void Appeler(const std::function<void()>& événement)
{
    if (événement)
        événement();
}

} // namespace

RichTextBox::RichTextBox(Ecran& écran, std::string_view nom, const EtatInitial& initial)
    : Elément(écran, nom, initial), Tabulations(initial.Tabulations), UneLigne(initial.UneLigne)
{
}

void RichTextBox::Signaler(const Edition& édition)
{
    if (EditionFaite)
        EditionFaite(édition);
    Appeler(Change);
}

void RichTextBox::TextRTF(TexteRiche texte)
{
    const auto avant = Longueur();
    texte_ = std::move(texte);
    formatEnAttente_.reset();
    début_ = 0;
    longueur_ = 0;
    Signaler({0, avant, Longueur()});
    Appeler(SelChange);
}

void RichTextBox::Text(VueTexte texte)
{
    Format format;
    if (!Police->empty())
        format.Police = Police;
    if (FontSize > 0)
        format.Taille = FontSize;
    TextRTF(TexteRiche{NormaliserLignes(texte), format});
}

std::optional<GenreDeTexte> RichTextBox::LoadFile(const Chemin& fichier, bool texteSimple)
{
    const auto octets = LireFichier(fichier);
    if (!octets)
        return std::nullopt;
    if (auto texte = LireRtf(*octets)) {
        TextRTF(std::move(*texte));
        return GenreDeTexte::Riche;
    }
    const auto texte = texteSimple ? LireTexteSimple(*octets) : std::nullopt;
    if (!texte)
        return std::nullopt;
    Text(*texte);
    return GenreDeTexte::Simple;
}

void RichTextBox::SelStart(std::size_t début)
{
    Sélectionner(début, 0);
}

void RichTextBox::SelLength(std::size_t longueur)
{
    Sélectionner(début_, longueur);
}

void RichTextBox::Sélectionner(std::size_t début, std::size_t longueur)
{
    début = std::min(début, Longueur());
    longueur = std::min(longueur, Longueur() - début);
    if (début == début_ && longueur == longueur_)
        return;
    début_ = début;
    longueur_ = longueur;
    formatEnAttente_.reset();
    Changer();
    Appeler(SelChange);
}

void RichTextBox::SelText(VueTexte nouveau)
{
    const auto début = début_;
    const auto retirés = longueur_;
    const auto format = FormatAuCurseur(début > 0 ? début - 1 : 0);
    texte_.Remplacer(début, retirés, nouveau, retirés == 0 ? &format : nullptr);
    début_ = début + nouveau.size();
    longueur_ = 0;
    formatEnAttente_.reset();
    Signaler({début, retirés, nouveau.size()});
    Appeler(SelChange);
}

void RichTextBox::Remplacer(std::size_t début, std::size_t longueur, VueTexte nouveau)
{
    début = std::min(début, Longueur());
    longueur = std::min(longueur, Longueur() - début);
    texte_.Remplacer(début, longueur, nouveau);
    début_ = std::min(début + nouveau.size(), Longueur());
    longueur_ = 0;
    formatEnAttente_.reset();
    Signaler({début, longueur, nouveau.size()});
}

void RichTextBox::Transcrire(Texte nouveaux)
{
    const auto& anciens = texte_.Caractères();
    const auto premier = std::mismatch(anciens.begin(), anciens.end(), nouveaux.begin(), nouveaux.end()).first;
    if (premier == anciens.end())
        return;
    const auto dernier = std::mismatch(anciens.rbegin(), anciens.rend(), nouveaux.rbegin(), nouveaux.rend()).first;
    const auto début = static_cast<std::size_t>(premier - anciens.begin());
    const auto nombre = static_cast<std::size_t>(dernier.base() - premier);
    texte_.Transcrire(std::move(nouveaux));
    Signaler({début, nombre, nombre});
}

void RichTextBox::ToutFormater(const std::function<void(Format&)>& retouche)
{
    texte_.Formater(0, Longueur(), retouche);
    Signaler({0, Longueur(), Longueur()});
}

void RichTextBox::FormaterSélection(const std::function<void(Format&)>& retouche)
{
    if (longueur_ == 0) {
        ParcourirFormats([&](const Format& format) {
            Format nouveau = format;
            retouche(nouveau);
            formatEnAttente_ = std::move(nouveau);
            return false;
        });
        Changer(); // who draws the box reads here what the next character takes
        return;
    }
    texte_.Formater(début_, longueur_, retouche);
    Signaler({début_, longueur_, longueur_});
}

void RichTextBox::FormaterParagraphes(const std::function<void(FormatParagraphe&)>& retouche)
{
    texte_.FormaterParagraphes(début_, longueur_, retouche);
    Signaler({début_, longueur_, longueur_});
}

void RichTextBox::ParcourirFormats(const std::function<bool(const Format&)>& visite) const
{
    if (longueur_ > 0) {
        bool suite = true;
        texte_.PourChaqueTranche(début_, début_ + longueur_,
                                 [&](const Tranche& tranche) { suite = suite && visite(*tranche.Style); });
        return;
    }
    // At a caret: of the character before it, unless that one ends the line before.
    const bool débutDeLigne = début_ == 0 || Text()[début_ - 1] == u'\n';
    visite(FormatAuCurseur(débutDeLigne ? début_ : début_ - 1));
}

// What was set at the caret, or what stands at `modèle`.
Format RichTextBox::FormatAuCurseur(std::size_t modèle) const
{
    if (formatEnAttente_)
        return *formatEnAttente_;
    Format format = texte_.FormatEn(modèle);
    format.Barré = format.Barré && DansUneMarque(texte_, début_, début_);
    return format;
}

void RichTextBox::ParcourirParagraphes(const std::function<bool(const FormatParagraphe&)>& visite) const
{
    if (longueur_ == 0) {
        visite(texte_.ParagrapheEn(début_));
        return;
    }
    bool suite = true;
    texte_.PourChaqueParagraphe(début_, début_ + longueur_,
                                [&](const TrancheParagraphes& tranche) { suite = suite && visite(*tranche.Style); });
}

void RichTextBox::Cliquer(std::size_t position)
{
    Sélectionner(position, 0);
    if (Enabled && EstAtteignable())
        Appeler(Click);
}

void RichTextBox::DoubleCliquer(std::size_t position)
{
    if (!Enabled || !EstAtteignable())
        return;
    Sélectionner(position, 0); // the second press has moved the caret
    Appeler(DblClick);
    Sélectionner(position, 1);
}

bool RichTextBox::Taper(Touche touche)
{
    if (KeyPress)
        KeyPress(touche);
    return !touche.Avalée;
}

void RichTextBox::Editer(std::size_t début, std::size_t retirés, const TexteRiche& ajouté)
{
    if (Locked)
        return;
    texte_.Remplacer(début, retirés, ajouté.Caractères());
    std::size_t place = début;
    ajouté.PourChaqueTranche(0, ajouté.Longueur(), [&](const Tranche& tranche) {
        texte_.Formater(place, tranche.Fin - tranche.Début, [&](Format& format) { format = *tranche.Style; });
        place += tranche.Fin - tranche.Début;
    });
    début_ = std::min(début + ajouté.Longueur(), Longueur());
    longueur_ = 0;
    formatEnAttente_.reset();
    Appeler(Change);
    Appeler(SelChange); // the caret stands behind what came in
}

} // namespace tirelune
