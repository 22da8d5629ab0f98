// The widgets that the toolkit lacks, or paints too plainly.
#pragma once
#include "core/Dessin.h"
#include "desktop/Apparence.h"
#include "desktop/Signes.h"

#include <QAbstractButton>
#include <QColor>
#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include <functional>

namespace tirelune {

// A text as it is painted in its place; measured once for each place.
class TexteAjusté {
public:
    const TexteEnPlace& Mesurer(const QFont& base, const QString& texte, QSize place, int drapeaux);

private:
    QFont base_;
    QString texte_;
    QSize place_;
    TexteEnPlace ajusté_;
};

// A caption; a button without its looks when it can be clicked. Else the mouse goes through to what holds it.
class Etiquette : public QLabel {
public:
    explicit Etiquette(QWidget* parent);

    std::function<void()> clic;
    QColor fond;
    QColor encre;
    bool bordure = false;
    bool centrée = false;
    bool lettresCoupées = false; // half their height stands at half the label's
    bool enLigne = false;        // never broken into lines
    Signe signe = Signe::Aucun;
    bool verdict = false; // the sign stands before the text, and not at the right end
    Dessin pictogramme;   // before the text
    QString plaque;       // a short text at the right end

    void RendreCliquable(bool cliquable);
    [[nodiscard]] bool EstCliquable() const { return cliquable_; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int largeur) const override;
    // Nothing of the caption is cut where it stands now.
    [[nodiscard]] bool MontreTout();
    // The letters of the caption where it stands now.
    [[nodiscard]] QFont PoliceMontrée();

protected:
    void paintEvent(QPaintEvent* événement) override;
    void mousePressEvent(QMouseEvent* événement) override;
    void mouseReleaseEvent(QMouseEvent* événement) override;
    void mouseDoubleClickEvent(QMouseEvent* événement) override;
    void keyPressEvent(QKeyEvent* événement) override;
    void enterEvent(QEnterEvent* événement) override;
    void leaveEvent(QEvent* événement) override;
    // What stands inside the borders; a drawing in the derived class.
    virtual void PeindreContenu(QPainter& peintre, QRect place);
    [[nodiscard]] virtual bool EstVide() const;
    // What it shows stands on that.
    [[nodiscard]] virtual QColor Sol() const;

private:
    // Where what it shows stands; a sign of a verdict stands in the text's own place.
    struct Parties {
        QRect Pictogramme;
        QRect Plaque;
        QRect Signe;
        QRect Texte;
    };
    [[nodiscard]] QString Montré() const;
    [[nodiscard]] int Drapeaux() const;
    [[nodiscard]] int Marge() const;
    [[nodiscard]] QRect PlaceDuContenu() const;
    [[nodiscard]] Parties Partager(QRect place) const;
    [[nodiscard]] int LargeurSigne() const;
    [[nodiscard]] int MargeDuVerdict() const;
    [[nodiscard]] int LargeurAjouts() const;
    [[nodiscard]] int LargeurPictogramme() const;
    [[nodiscard]] int LargeurPlaque() const;
    void PeindreFond(QPainter& peintre) const;
    void PeindreLettresCoupées(QPainter& peintre, const QRect& place) const;
    [[nodiscard]] QFont PoliceCoupée(int largeur) const;
    void PeindrePictogramme(QPainter& peintre, const QRect& place, const QColor& sol) const;
    void PeindrePlaqueSous(QPainter& peintre, const QRect& texte, const QColor& couleur) const;

    bool cliquable_ = false;
    bool pressée_ = false;
    bool survolée_ = false;
    TexteAjusté ajusté_;
};

class ImageDessinée final : public Etiquette {
public:
    using Etiquette::Etiquette;

    Dessin dessin;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {16, 16}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }

protected:
    void PeindreContenu(QPainter& peintre, QRect place) override;
    [[nodiscard]] bool EstVide() const override { return dessin.Formes.empty(); }
    [[nodiscard]] QColor Sol() const override;
};

class Bouton final : public QPushButton {
public:
    explicit Bouton(QWidget* parent);

    QColor fond;
    QColor encre;
    Dessin dessin; // in the place of a text: as high as a field

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* événement) override;
    void enterEvent(QEnterEvent* événement) override;
    void leaveEvent(QEvent* événement) override;

private:
    TexteAjusté ajusté_;
};

// Whether one of the widgets in it is shown.
bool MontreQuelqueChose(const QWidget& fond);

// What belongs together, on white.
class Papier final : public QWidget {
public:
    using QWidget::QWidget;

    QColor accent; // of its left edge, where it has one
    QColor fond = Teinte::Panneau;

protected:
    void paintEvent(QPaintEvent* événement) override;
};

// The foot of a page.
class PiedDePage final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* événement) override;

private:
    bool montrait_ = false; // something, when it was last painted
};

// A titled group of elements.
class Panneau final : public QWidget {
public:
    explicit Panneau(QWidget* parent);

    QColor fond;
    QColor encre;
    bool couvrant = false; // over the whole screen: a card on a ground of its own
    bool enTête = false;   // an element stands beside the title
    bool cliquable = false;
    bool traînable = false;
    std::function<void()> clic;
    // The first movement, and the drop; both in pixels inside the panel.
    std::function<void(QPoint)> début;
    std::function<void(QPoint)> dépôt;

    void Titrer(const QString& titre);
    [[nodiscard]] QFont PoliceTitre() const;
    [[nodiscard]] int HauteurTitre() const;
    void AjusterMarges();
    // What its elements stand on.
    [[nodiscard]] QColor Sol() const;

protected:
    void paintEvent(QPaintEvent* événement) override;
    void mousePressEvent(QMouseEvent* événement) override;
    void mouseMoveEvent(QMouseEvent* événement) override;
    void mouseReleaseEvent(QMouseEvent* événement) override;
    void changeEvent(QEvent* événement) override;

private:
    void PeindreCarte(QPainter& peintre) const;
    void PeindreCouverture(QPainter& peintre) const;
    [[nodiscard]] QRect PlaceDuMilieu() const;

    QString titre_;
    QPoint prise_; // where the button went down
    QPoint départ_;
    bool pressé_ = false;
    bool traîné_ = false;
};

} // namespace tirelune
