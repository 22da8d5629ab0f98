#include "desktop/NomsEntendus.h"

#include "core/Ecran.h"
#include "desktop/Conversions.h"
#include "desktop/Signes.h"

#include <algorithm>

namespace tirelune {

namespace {

// From the top of the arrangement to the element.
bool Mener(const Arrangement& place, const Elément& cherché, std::vector<const Arrangement*>& chemin)
{
    chemin.push_back(&place);
    const auto mener = [&](const Arrangement& enfant) { return Mener(enfant, cherché, chemin); };
    if (place.Occupant == &cherché || std::any_of(place.Enfants.begin(), place.Enfants.end(), mener))
        return true;
    chemin.pop_back();
    return false;
}

// The captions that a place begins with.
QString Légendes(const Arrangement& place)
{
    if (place.Genre == Disposition::Elément)
        return TexteLu(*place.Occupant);
    if (place.Genre != Disposition::Ligne)
        return {};
    QString dites;
    for (const auto& enfant : place.Enfants) {
        const auto une = Légendes(enfant);
        if (une.isEmpty())
            break;
        dites += une + u' ';
    }
    return dites.trimmed();
}

QString SansDeuxPoints(QString libellé)
{
    if (libellé.endsWith(u':'))
        libellé.chop(1);
    return libellé.trimmed();
}

// The label that stands just before or above an element; else the title of the frame around it.
QString LibelléVoisin(const Elément& élément)
{
    std::vector<const Arrangement*> chemin;
    if (!Mener(élément.EcranDe().Plan(), élément, chemin))
        return {};
    for (std::size_t i = chemin.size() - 1; i > 0; --i) {
        const auto& autour = *chemin[i - 1];
        if (autour.Genre == Disposition::Ligne || autour.Genre == Disposition::Colonne) {
            const auto* avant =
                std::find_if(std::make_reverse_iterator(chemin[i]), std::make_reverse_iterator(autour.Enfants.data()),
                             [](const Arrangement& une) { return une.Genre != Disposition::Ressort; })
                    .base();
            if (avant != autour.Enfants.data())
                return SansDeuxPoints(Légendes(avant[-1]));
        } else if (const auto* cadre = dynamic_cast<const Frame*>(autour.Occupant); cadre != nullptr) {
            return Prononçable(cadre->Caption());
        }
    }
    return {};
}

// What a tick box without a caption ticks: the text behind it.
QString Choix(const Elément& case_)
{
    std::vector<const Arrangement*> chemin;
    if (!Mener(case_.EcranDe().Plan(), case_, chemin) || chemin.size() < 2)
        return {};
    const auto& autour = *chemin[chemin.size() - 2];
    const auto* suivant = chemin.back() + 1;
    if (suivant == autour.Enfants.data() + autour.Enfants.size() || suivant->Occupant == nullptr)
        return {};
    const auto* champ = dynamic_cast<const TextBox*>(suivant->Occupant);
    return champ != nullptr ? Prononçable(champ->Text()) : TexteLu(*suivant->Occupant);
}

QString NomDuGenre(const Elément& élément)
{
    if (dynamic_cast<const RichTextBox*>(&élément) != nullptr)
        return QStringLiteral("Texte");
    if (dynamic_cast<const TextBox*>(&élément) != nullptr)
        return QStringLiteral("Saisie");
    if (dynamic_cast<const ScrollBar*>(&élément) != nullptr)
        return QStringLiteral("Défilement");
    if (dynamic_cast<const Toolbar*>(&élément) != nullptr)
        return QStringLiteral("Outils");
    return QStringLiteral("Liste");
}

QString PremierNonVide(std::initializer_list<QString> noms)
{
    const auto* nom = std::find_if(noms.begin(), noms.end(), [](const QString& un) { return !un.isEmpty(); });
    return nom == noms.end() ? QString{} : *nom;
}

QString SansEtat(const Elément& élément)
{
    const auto libellé = EnQString(élément.Libellé);
    const auto bulle = Prononçable(élément.ToolTipText());
    if (const auto* légendé = dynamic_cast<const Légendé*>(&élément); légendé != nullptr) {
        const auto légende = Prononçable(légendé->Caption());
        if (dynamic_cast<const CheckBox*>(&élément) != nullptr)
            return PremierNonVide({légende, Choix(élément), libellé, bulle});
        if (dynamic_cast<const Image*>(&élément) != nullptr)
            return PremierNonVide({légende, libellé, bulle});
        if (dynamic_cast<const Label*>(&élément) != nullptr && légendé->Click)
            return PremierNonVide({légende, libellé, QStringLiteral("vide")});
        return PremierNonVide({légende, libellé});
    }
    if (const auto* champ = dynamic_cast<const TextBox*>(&élément);
        champ != nullptr && (champ->ALire || (champ->Locked && champ->Click && !champ->MultiLine)))
        return PremierNonVide({Prononçable(champ->Text()), libellé, QStringLiteral("vide")});
    if (const auto* ligne = dynamic_cast<const RichTextBox*>(&élément);
        ligne != nullptr && ligne->Click && ligne->UneLigne)
        return PremierNonVide({EnQString(ligne->Text()), libellé, QStringLiteral("vide")});
    return PremierNonVide({libellé, LibelléVoisin(élément), TexteLu(élément), bulle, NomDuGenre(élément)});
}

QString Etat(const Elément& élément)
{
    if (const auto* label = dynamic_cast<const Label*>(&élément);
        label != nullptr && label->SensDesCouleurs == Sens::Verdict)
        return {}; // its words say it
    switch (SigneDe(élément)) {
    case Signe::Juste:
        return QStringLiteral("juste");
    case Signe::Faux:
        return QStringLiteral("faux");
    case Signe::Choisi:
        return QStringLiteral("choisi");
    case Signe::Verrou:
        return QStringLiteral("verrouillé");
    case Signe::Aucun:
        break;
    }
    return {};
}

} // namespace

QString Prononçable(VueTexte légende)
{
    static constexpr char16_t Gardée = u'\uE000'; // of "&&", the "&" that shows
    auto dite = EnAffichage(légende);
    dite.replace(QStringLiteral("&&"), QString{Gardée}).remove(u'&').replace(Gardée, u'&');
    return dite.simplified();
}

QString TexteLu(const Elément& élément)
{
    if (const auto* label = dynamic_cast<const Label*>(&élément); label != nullptr && !label->Click && label->Visible)
        return Prononçable(label->Caption());
    if (const auto* champ = dynamic_cast<const TextBox*>(&élément);
        champ != nullptr && !champ->Click && champ->Locked && champ->Visible)
        return EnQString(champ->Text()).simplified();
    return {};
}

QString Annonçable(const Elément& élément)
{
    if (const auto* cadre = dynamic_cast<const Frame*>(&élément); cadre != nullptr)
        return Prononçable(cadre->Caption());
    const auto signe = SigneDe(élément);
    const bool jugé = signe == Signe::Juste || signe == Signe::Faux;
    const auto lu = TexteLu(élément);
    return lu.isEmpty() && jugé ? NomEntendu(élément) : lu;
}

QString PhraseAutour(const Elément& élément)
{
    static const QString Barre = QStringLiteral("/");
    std::vector<const Arrangement*> chemin;
    auto seul = Annonçable(élément);
    if (!Mener(élément.EcranDe().Plan(), élément, chemin) || chemin.size() < 2 ||
        chemin[chemin.size() - 2]->Genre != Disposition::Ligne)
        return seul;
    QStringList mots;
    for (const auto& voisin : chemin[chemin.size() - 2]->Enfants) {
        if (voisin.Genre == Disposition::Elément)
            mots.push_back(TexteLu(*voisin.Occupant));
    }
    const auto barre = mots.indexOf(Barre);
    if (barre <= 0 || barre + 1 >= mots.size() || (seul != mots[barre - 1] && seul != mots[barre + 1] && seul != Barre))
        return seul;
    return mots[barre - 1] + QStringLiteral(" sur ") + mots[barre + 1];
}

QString NomEntendu(const Elément& élément)
{
    QStringList mots{SansEtat(élément)};
    if (const auto* label = dynamic_cast<const Label*>(&élément); label != nullptr && !label->Plaque().empty())
        mots.push_back(Prononçable(label->Plaque()));
    if (const auto état = Etat(élément); !état.isEmpty())
        mots.push_back(état);
    return mots.join(QStringLiteral(", "));
}

} // namespace tirelune
