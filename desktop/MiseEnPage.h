// Lays a text out paragraph by paragraph: those in sight when they are painted, the others a few at a time while
// nothing else happens. What an edit or a format costs doesn't grow with the text. The document holds characters alone.
// What they look like comes from whoever shows the text, when a paragraph is laid out: a format that changes touches no
// character. No paragraph may be asked for within an edit block.
#pragma once
#include <QAbstractTextDocumentLayout>
#include <QBasicTimer>
#include <QTextBlockFormat>
#include <QTextLayout>

#include <functional>
#include <vector>

namespace tirelune {

// Of one paragraph.
struct Habillage {
    QList<QTextLayout::FormatRange> Lettres; // positions in the paragraph
    QTextCharFormat Vide;                    // how high a paragraph without letters is
    QTextBlockFormat Cadre;
};

class MiseEnPage final : public QAbstractTextDocumentLayout {
public:
    explicit MiseEnPage(QTextDocument* document) : QAbstractTextDocumentLayout(document) {}

    std::function<Habillage(const QTextBlock&)> Habiller;
    std::function<bool()> EnAccord;   // false: text and formats are being changed, what is laid out now won't last
    std::function<int()> Haut;        // the top of what is in sight
    std::function<void(int)> Défiler; // brings that height to the top of what is in sight
    double Interligne = 1;            // height of a line, in heights of its letters
    double LargeurDeLecture = 0;      // pixels that lines have at most, in the middle of a wider page; 0: any
    bool MontrerSélection = true;     // no: the letters say by themselves what is chosen

    // Formats or measures of these paragraphs have changed.
    void Périmer(int premier, int dernier);
    // Lays out what it finds time for; the rest follows by itself.
    void Avancer();
    // Lays out what stands between these heights, and says what that has moved.
    void Préparer(double haut, double bas);

    void draw(QPainter* peintre, const PaintContext& contexte) override;
    [[nodiscard]] int hitTest(const QPointF& point, Qt::HitTestAccuracy précision) const override;
    [[nodiscard]] int pageCount() const override { return 1; }
    [[nodiscard]] QSizeF documentSize() const override;
    [[nodiscard]] QRectF frameBoundingRect(QTextFrame* cadre) const override;
    [[nodiscard]] QRectF blockBoundingRect(const QTextBlock& bloc) const override;

protected:
    void documentChanged(int de, int retirés, int ajoutés) override;
    void timerEvent(QTimerEvent* événement) override;

private:
    struct Paragraphe {
        int Hauteur = 0; // in whole pixels, so that scrolling can make up for it; a guess, until it is laid out
        bool Mis = false;
    };

    [[nodiscard]] double Largeur() const;
    [[nodiscard]] double Gauche() const;
    [[nodiscard]] int Nombre() const { return static_cast<int>(paragraphes_.size()); }
    [[nodiscard]] double HautDe(int rang) const;
    [[nodiscard]] int RangSous(double y) const;
    [[nodiscard]] int Estimer(const QTextBlock& bloc) const;
    void Mettre(const QTextBlock& bloc, int rang) const;
    [[nodiscard]] int PoserLignes(const QTextBlock& bloc, const Habillage& habillage) const;
    void Annoncer();

    // Laying out on demand changes what is known of the text, and nothing of the text.
    mutable std::vector<Paragraphe> paragraphes_;
    mutable std::vector<int> hauts_{0}; // of each paragraph, and the end; right up to `justes_`
    mutable std::size_t justes_ = 0;
    mutable double hauteurLigne_ = 0;    // of the last paragraph laid out
    mutable double lettresParLigne_ = 0; // of the last one of several lines
    mutable int décalage_ = 0;           // how far what is in sight was pushed, and has yet to be scrolled
    mutable bool tailleChangée_ = false;
    mutable bool enMise_ = false;
    int prochain_ = 0; // those before it are laid out
    QBasicTimer suite_;
};

} // namespace tirelune
