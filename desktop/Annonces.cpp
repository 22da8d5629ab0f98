#include "desktop/Annonces.h"

#include "core/Ecran.h"
#include "desktop/NomsEntendus.h"

#include <QAccessible>
#include <QLabel>

#include <utility>

namespace tirelune {

Annonce::Annonce(QWidget* fenêtre) : QWidget(fenêtre), message_(new QLabel{this})
{
    setObjectName(QStringLiteral("annonce"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 1, 1);
    lower();
}

void Annonce::Dire(const QString& message)
{
    message_->setText(message);
    if (isHidden()) {
        show(); // which says so
        return;
    }
    QAccessibleEvent montrée{this, QAccessible::ObjectShow};
    QAccessible::updateAccessibility(&montrée);
}

QString Annonce::Dite() const
{
    return message_->text();
}

bool Annonces::Rebours(const Connu& avant, const QString& nouveau)
{
    static constexpr qint64 PasMaximal = 2000; // ms
    bool nombres = false;
    const int ancien = avant.Texte.toInt(&nombres);
    return nombres && nouveau == QString::number(ancien - 1) && avant.Depuis.isValid() &&
           !avant.Depuis.hasExpired(PasMaximal);
}

// What is to be said of it; empty: nothing new, or nothing worth it.
QString Annonces::Changement(const Elément& élément)
{
    const auto entendu = élément.EstAtteignable() ? Annonçable(élément) : QString{};
    auto& connu = connus_[&élément];
    if (entendu == connu.Texte)
        return {};
    const bool rebours = Rebours(connu, entendu);
    connu.Texte = entendu;
    connu.Depuis.start();
    const bool dit = !rebours || entendu == u"10" || entendu == u"5" || entendu == u"0";
    return dit ? entendu : QString{};
}

void Annonces::Suivre(const Ecran& écran)
{
    static constexpr qsizetype Maximum = 8; // a screen that changes as a whole isn't read out
    const bool premier = connus_.empty();
    QStringList dits;
    for (const auto* élément : écran.Eléments()) {
        if (Changement(*élément).isEmpty())
            continue;
        if (const auto phrase = PhraseAutour(*élément); !dits.contains(phrase))
            dits.push_back(phrase);
    }
    if (premier || dits.isEmpty() || dits.size() > Maximum)
        return;
    if (annonce_ == nullptr)
        annonce_ = new Annonce{&fenêtre_};
    annonce_->Dire(dits.join(QStringLiteral(". ")));
}

} // namespace tirelune
