#include "desktop/Bandeau.h"

#include "desktop/Apparence.h"
#include "desktop/Composants.h"
#include "desktop/Conversions.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace tirelune {

namespace {

constexpr double Hauteur = 54; // pixels, on an 800 x 600 display
constexpr double PointsDuTitre = 17;
constexpr double PointsDuNom = 12;

// A plate in the colour of the points, around the counts.
class Plaque final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* /*événement*/) override
    {
        if (!MontreQuelqueChose(*this))
            return;
        QPainter peintre{this};
        peintre.setRenderHint(QPainter::Antialiasing);
        peintre.setPen(QPen{Teinte::BordBouton, 1.5});
        peintre.setBrush(EnQColor(Jaune, {}));
        peintre.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), Arrondi, Arrondi);
    }
};

} // namespace

Bandeau::Bandeau(const TitreDePage& titre, QWidget* parent)
    : QWidget(parent), titre_(titre), bande_(new QWidget{this}), points_(new Plaque{bande_}), carte_(new Papier{this})
{
    setObjectName("bandeau");
    setAccessibleName(EnQString(titre.NomElève.empty() ? titre.Titre : titre.Titre + u", " + titre.NomElève));
    carte_->accent = EnQColor(titre.Bande, Teinte::BordPanneau);
    auto* tout = new QVBoxLayout{this};
    tout->setContentsMargins(0, 0, 0, 0);
    tout->setSpacing(0);
    tout->addWidget(bande_);
    tout->addWidget(carte_);
    auto* ligne = new QHBoxLayout{bande_};
    ligne->addStretch(1);
    ligne->addWidget(points_);
}

QWidget& Bandeau::Consigne() const
{
    return *carte_;
}

void Bandeau::Mesurer(double échelle)
{
    échelle_ = échelle;
    const auto pixels = [échelle](double unités) { return qRound(unités * échelle); };
    bande_->setFixedHeight(pixels(Hauteur));
    bande_->layout()->setContentsMargins(0, pixels(8), pixels(16), pixels(8));
    if (auto* compte = points_->layout(); compte != nullptr)
        compte->setContentsMargins(pixels(8), pixels(2), pixels(8), pixels(2));
    carte_->setVisible(carte_->layout() != nullptr);
    layout()->setContentsMargins(0, 0, 0, 0);
    if (auto* consigne = carte_->layout(); consigne != nullptr)
        consigne->setContentsMargins(pixels(28), pixels(10), pixels(24), pixels(8));
    update();
}

void Bandeau::paintEvent(QPaintEvent* /*événement*/)
{
    QPainter peintre{this};
    peintre.setRenderHint(QPainter::Antialiasing);
    const auto bande = bande_->geometry();
    const auto fond = EnQColor(titre_.Bande, Teinte::BordPanneau);
    const auto encre = EncreSur(fond, EnQColor(titre_.Profonde, Teinte::Encre));
    peintre.fillRect(bande, fond);

    const double marge = 5 * échelle_;
    const QRectF disque{bande.x() + 3 * marge, bande.y() + marge, bande.height() - 2 * marge,
                        bande.height() - 2 * marge};
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(Qt::white);
    peintre.drawEllipse(disque);
    const double retrait = disque.width() * 0.2;
    Peindre(peintre, titre_.Pictogramme, disque.adjusted(retrait, retrait, -retrait, -retrait));

    const int gauche = qRound(disque.right() + 2 * marge);
    const int droite = points_->x() - qRound(2 * marge);
    const auto policeNom = PolicePour({}, PointsDuNom, true, échelle_);
    const auto nom = EnQString(titre_.NomElève);
    const int largeurNom = nom.isEmpty() ? 0
                                         : std::min(QFontMetrics{policeNom}.horizontalAdvance(nom) + qRound(5 * marge),
                                                    (droite - gauche) / 2);
    const auto titre = EnQString(titre_.Titre);
    const QRect placeTitre{gauche, bande.y(), droite - gauche - largeurNom - qRound(2 * marge), bande.height()};
    const auto policeTitre = AjusterPolice(PolicePour({}, PointsDuTitre, true, échelle_), titre, placeTitre.size(), 0);
    peintre.setFont(policeTitre);
    peintre.setPen(encre);
    peintre.drawText(placeTitre, Qt::AlignVCenter, titre);
    if (largeurNom == 0)
        return;
    const double finTitre = gauche + QFontMetrics{policeTitre}.horizontalAdvance(titre) + 3 * marge;
    const double hauteurNom = QFontMetrics{policeNom}.height() + 1.4 * marge;
    const QRectF plaque{finTitre, bande.center().y() - hauteurNom / 2, double(largeurNom), hauteurNom};
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(encre);
    peintre.drawRoundedRect(plaque, hauteurNom / 2, hauteurNom / 2);
    peintre.setFont(AjusterPolice(policeNom, nom, plaque.toRect().size(), 0));
    peintre.setPen(EncreSur(encre, Qt::white));
    peintre.drawText(plaque, Qt::AlignCenter, nom);
}

} // namespace tirelune
