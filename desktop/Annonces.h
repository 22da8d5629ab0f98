// Tells assistive tools what changes by itself on a screen: verdicts, points, the next word, a countdown at 10, 5 and
// 0.
#pragma once
#include <QElapsedTimer>
#include <QString>
#include <QWidget>

#include <unordered_map>

class QLabel;

namespace tirelune {

class Ecran;
class Elément;

// What is read out as soon as it shows: the words on the label in it. Nobody sees it.
class Annonce final : public QWidget {
public:
    explicit Annonce(QWidget* fenêtre);

    void Dire(const QString& message);
    [[nodiscard]] QString Dite() const;

private:
    QLabel* message_;
};

class Annonces {
public:
    explicit Annonces(QWidget& fenêtre) : fenêtre_(fenêtre) {}

    // Looks what has changed since the last time.
    void Suivre(const Ecran& écran);

private:
    struct Connu {
        QString Texte;
        QElapsedTimer Depuis;
    };

    [[nodiscard]] QString Changement(const Elément& élément);
    static bool Rebours(const Connu& avant, const QString& nouveau);

    QWidget& fenêtre_;
    Annonce* annonce_ = nullptr; // made for the first message
    std::unordered_map<const Elément*, Connu> connus_;
};

} // namespace tirelune
