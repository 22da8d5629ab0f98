#include "desktop/MiseEnPage.h"

#include <QElapsedTimer>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTimerEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tirelune {

namespace {

constexpr int Pas = 5;    // ms of laying out at a time
constexpr int Pause = 10; // ms from one time to the next: keys and clicks come in between
constexpr double SansFin = 1e9;

// What is being composed stands in the line without being part of the text.
QList<QTextLayout::FormatRange> AutourDe(const QTextLayout& lignes, QList<QTextLayout::FormatRange> lettres)
{
    const int composés = static_cast<int>(lignes.preeditAreaText().size());
    if (composés == 0)
        return lettres;
    const int place = lignes.preeditAreaPosition();
    for (auto& morceau : lettres) {
        if (morceau.start >= place)
            morceau.start += composés;
        else if (morceau.start + morceau.length > place)
            morceau.length += composés;
    }
    QTextCharFormat souligné;
    souligné.setFontUnderline(true);
    lettres.push_back({place, composés, souligné});
    return lettres;
}

int EnPixels(double hauteur)
{
    return static_cast<int>(std::ceil(hauteur));
}

} // namespace

// ---- Heights -----------------------------------------------------------------------------------------------------

double MiseEnPage::Largeur() const
{
    const double page = document()->pageSize().width() - 2 * document()->documentMargin();
    return LargeurDeLecture > 0 ? std::min(page, LargeurDeLecture) : page;
}

double MiseEnPage::Gauche() const
{
    return std::max(document()->documentMargin(), std::floor((document()->pageSize().width() - Largeur()) / 2));
}

double MiseEnPage::HautDe(int rang) const
{
    const auto voulu = static_cast<std::size_t>(rang);
    for (; justes_ < voulu; ++justes_)
        hauts_[justes_ + 1] = hauts_[justes_] + paragraphes_[justes_].Hauteur;
    return document()->documentMargin() + hauts_[voulu];
}

// The first one above all, the last one below all.
int MiseEnPage::RangSous(double y) const
{
    if (y >= HautDe(Nombre()))
        return std::max(0, Nombre() - 1);
    const auto suivant = std::upper_bound(hauts_.begin(), hauts_.end(), y - document()->documentMargin());
    return std::max(0, static_cast<int>(suivant - hauts_.begin()) - 1);
}

int MiseEnPage::Estimer(const QTextBlock& bloc) const
{
    if (hauteurLigne_ <= 0) {
        const QFontMetricsF mesure{document()->defaultFont()};
        hauteurLigne_ = mesure.lineSpacing();
        lettresParLigne_ = std::max(1.0, Largeur() / std::max(1.0, mesure.averageCharWidth()));
    }
    return EnPixels(hauteurLigne_ * (1 + static_cast<int>((bloc.length() - 1) / std::max(1.0, lettresParLigne_))));
}

QSizeF MiseEnPage::documentSize() const
{
    return {std::max(0.0, document()->pageSize().width()), HautDe(Nombre()) + document()->documentMargin()};
}

QRectF MiseEnPage::frameBoundingRect(QTextFrame* /*cadre*/) const
{
    return {{}, documentSize()};
}

QRectF MiseEnPage::blockBoundingRect(const QTextBlock& bloc) const
{
    const int rang = bloc.blockNumber();
    if (!bloc.isValid() || rang >= Nombre())
        return {};
    Mettre(bloc, rang);
    const QPointF coin{Gauche(), HautDe(rang)};
    bloc.layout()->setPosition(coin); // where assistive tools look for its letters
    return {coin, QSizeF{Largeur(), static_cast<double>(paragraphes_[static_cast<std::size_t>(rang)].Hauteur)}};
}

// ---- Laying out --------------------------------------------------------------------------------------------------

void MiseEnPage::Mettre(const QTextBlock& bloc, int rang) const
{
    auto& paragraphe = paragraphes_[static_cast<std::size_t>(rang)];
    if ((paragraphe.Mis && bloc.layout()->lineCount() > 0) || Largeur() <= 0 || enMise_)
        return;
    enMise_ = true;
    const int hauteur = PoserLignes(bloc, Habiller(bloc));
    enMise_ = false;
    paragraphe.Mis = EnAccord();
    if (hauteur == paragraphe.Hauteur)
        return;
    if (HautDe(rang) + paragraphe.Hauteur <= Haut() + décalage_)
        décalage_ += hauteur - paragraphe.Hauteur;
    paragraphe.Hauteur = hauteur;
    justes_ = std::min(justes_, static_cast<std::size_t>(rang));
    tailleChangée_ = true;
}

int MiseEnPage::PoserLignes(const QTextBlock& bloc, const Habillage& habillage) const
{
    auto& lignes = *bloc.layout();
    auto option = document()->defaultTextOption();
    option.setAlignment(habillage.Cadre.alignment());
    lignes.setTextOption(option);
    lignes.setFormats(AutourDe(lignes, habillage.Lettres));
    document()->markContentsDirty(bloc.position(),
                                  0); // the document takes formats for a change that it has yet to tell
    const double gauche = habillage.Cadre.leftMargin();
    const double largeur = Largeur() - gauche - habillage.Cadre.rightMargin();
    double retrait = habillage.Cadre.textIndent();
    double y = 0;
    lignes.beginLayout();
    for (auto ligne = lignes.createLine(); ligne.isValid(); ligne = lignes.createLine()) {
        ligne.setLeadingIncluded(true);
        ligne.setLineWidth(std::max(1.0, largeur - retrait));
        const double blanc = ligne.height() * (Interligne - 1);
        ligne.setPosition({gauche + retrait, y + blanc / 2});
        y += ligne.height() + blanc;
        retrait = 0;
    }
    lignes.endLayout();
    if (bloc.length() <= 1)
        return EnPixels(QFontMetricsF{habillage.Vide.font()}.lineSpacing() * Interligne);
    hauteurLigne_ = y / lignes.lineCount();
    if (lignes.lineCount() > 1)
        lettresParLigne_ = lignes.lineAt(1).textStart();
    return EnPixels(y);
}

void MiseEnPage::documentChanged(int de, int /*retirés*/, int ajoutés)
{
    if (enMise_)
        return;
    auto* texte = document();
    const int dernièrePlace = texte->characterCount() - 1;
    const auto bloc = texte->findBlock(std::min(de, dernièrePlace));
    const int premier = bloc.blockNumber();
    const int dernier = texte->findBlock(std::min(de + ajoutés, dernièrePlace)).blockNumber();
    const int nouveaux = texte->blockCount() - Nombre();
    const bool unSeul = nouveaux == 0 && premier == dernier;
    const int hauteur = unSeul ? paragraphes_[static_cast<std::size_t>(premier)].Hauteur : 0;

    const auto place = paragraphes_.begin() + premier;
    if (nouveaux > 0)
        paragraphes_.insert(place, static_cast<std::size_t>(nouveaux), {});
    else
        paragraphes_.erase(place, place - nouveaux);
    hauts_.resize(paragraphes_.size() + 1);
    justes_ = std::min(justes_, static_cast<std::size_t>(premier));
    auto changé = bloc;
    for (int rang = premier; rang <= dernier; ++rang, changé = changé.next()) {
        changé.clearLayout();
        auto& paragraphe = paragraphes_[static_cast<std::size_t>(rang)];
        paragraphe.Mis = false;
        if (nouveaux != 0)
            paragraphe.Hauteur = Estimer(changé);
    }
    if (texte->pageSize().width() <= 0)
        return;
    prochain_ = std::min(prochain_, premier);
    tailleChangée_ = true;
    if (EnAccord())
        Avancer();
    const auto cadre = blockBoundingRect(bloc);
    const bool surPlace = unSeul && cadre.height() == hauteur;
    emit update(surPlace ? cadre : QRectF{0, cadre.top(), SansFin, SansFin});
}

void MiseEnPage::Périmer(int premier, int dernier)
{
    for (int rang = premier; rang <= dernier && rang < Nombre(); ++rang)
        paragraphes_[static_cast<std::size_t>(rang)].Mis = false;
    prochain_ = std::min(prochain_, premier);
    emit update(QRectF{0, HautDe(std::min(premier, Nombre())), SansFin, SansFin});
}

void MiseEnPage::Avancer()
{
    QElapsedTimer temps;
    temps.start();
    for (; prochain_ < Nombre(); ++prochain_) {
        if (paragraphes_[static_cast<std::size_t>(prochain_)].Mis)
            continue;
        if (temps.elapsed() >= Pas)
            break;
        Mettre(document()->findBlockByNumber(prochain_), prochain_);
    }
    if (prochain_ < Nombre() && !suite_.isActive())
        suite_.start(Pause, this);
    Annoncer();
}

void MiseEnPage::Préparer(double haut, double bas)
{
    auto bloc = document()->findBlockByNumber(RangSous(haut));
    for (; bloc.isValid() && blockBoundingRect(bloc).top() < bas;)
        bloc = bloc.next();
    Annoncer();
}

void MiseEnPage::timerEvent(QTimerEvent* événement)
{
    if (événement->timerId() != suite_.timerId()) {
        QAbstractTextDocumentLayout::timerEvent(événement);
        return;
    }
    if (!EnAccord())
        return;
    Avancer();
    if (prochain_ == Nombre())
        suite_.stop();
}

void MiseEnPage::Annoncer()
{
    if (!std::exchange(tailleChangée_, false))
        return;
    const int haut = Haut(); // the scroll bar may move by itself when its range changes
    const int décalage = std::exchange(décalage_, 0);
    emit documentSizeChanged(documentSize());
    if (décalage != 0)
        Défiler(haut + décalage);
}

// ---- Painting and pointing ---------------------------------------------------------------------------------------

void MiseEnPage::draw(QPainter* peintre, const PaintContext& contexte)
{
    const QRectF vu = contexte.clip.isValid() ? contexte.clip : QRectF{{}, documentSize()};
    peintre->setPen(contexte.palette.color(QPalette::Text));
    auto bloc = document()->findBlockByNumber(RangSous(vu.top()));
    for (; bloc.isValid(); bloc = bloc.next()) {
        if (blockBoundingRect(bloc).top() > vu.bottom())
            break;
        QList<QTextLayout::FormatRange> choisis;
        for (const auto& sélection : contexte.selections) {
            if (!MontrerSélection)
                break;
            const int début = sélection.cursor.selectionStart() - bloc.position();
            const int fin = sélection.cursor.selectionEnd() - bloc.position();
            if (début < bloc.length() && fin > 0 && fin > début)
                choisis.push_back({début, fin - début, sélection.format});
        }
        const auto* lignes = bloc.layout();
        lignes->draw(peintre, {}, choisis, vu);
        int curseur = contexte.cursorPosition;
        if (bloc.contains(curseur))
            curseur -= bloc.position();
        else if (curseur < -1 && !lignes->preeditAreaText().isEmpty())
            curseur = lignes->preeditAreaPosition() - (curseur + 2);
        else
            continue;
        lignes->drawCursor(peintre, {}, curseur, std::max(1, property("cursorWidth").toInt()));
    }
    if (tailleChangée_ && !suite_.isActive())
        suite_.start(Pause, this); // the scroll bar hears of it after the painting
}

int MiseEnPage::hitTest(const QPointF& point, Qt::HitTestAccuracy précision) const
{
    const auto bloc = document()->findBlockByNumber(RangSous(point.y()));
    const auto cadre = blockBoundingRect(bloc);
    if (précision == Qt::ExactHit && !cadre.contains(point))
        return -1;
    const auto* lignes = bloc.layout();
    for (int i = 0; i < lignes->lineCount(); ++i) {
        const auto ligne = lignes->lineAt(i);
        if (i + 1 == lignes->lineCount() || point.y() < cadre.top() + ligne.y() + ligne.height())
            return bloc.position() + ligne.xToCursor(point.x() - cadre.left());
    }
    return bloc.position();
}

} // namespace tirelune
