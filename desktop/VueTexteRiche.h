// A formatted text in the toolkit's text widget. In the element a line end counts two positions, in the widget one.
#pragma once
#include "core/RichTextBox.h"
#include "desktop/MiseEnPage.h"
#include "desktop/Retouches.h"
#include "desktop/Vue.h"

#include <QColor>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextEdit>

#include <functional>
#include <unordered_map>

namespace tirelune {

class VueTexteRiche final : public Vue {
public:
    VueTexteRiche(Hôte& hôte, RichTextBox& boîte, QWidget* parent);
    ~VueTexteRiche() override;

    void Synchroniser() override;
    bool Taper(const Touche& touche) override;

    // Positions of the element and of the widget.
    [[nodiscard]] int EnWidget(std::size_t position) const;
    [[nodiscard]] std::size_t DepuisWidget(int position) const;
    [[nodiscard]] QTextEdit& Zone() const { return zone_; }
    // In a text that is only read: the character that the keyboard would click.
    [[nodiscard]] int Visé() const;
    void Viser(int position);
    // On the display.
    [[nodiscard]] QRect PlaceSélection() const;

private:
    class Page;
    struct HachageFormat {
        std::size_t operator()(const Format& format) const { return Hachage(format); }
    };

    [[nodiscard]] QString Affiché(std::size_t début, std::size_t fin) const;
    const QTextCharFormat& FormatDe(const Format& format);
    [[nodiscard]] Habillage Habiller(const QTextBlock& bloc);
    void Mettre(Retouche retouche);
    void MettreSélection();
    void MontrerCurseur();
    void SuivreEchelle();
    void HausserCurseur();

    void Reprendre(int position, int retirés, int ajoutés);
    [[nodiscard]] Format FormatTapé(std::size_t début, std::size_t retirés, VueTexte arrivé) const;
    void NoterSélection();

    RichTextBox& boîte_;
    QTextEdit& zone_;
    MiseEnPage& mise_;
    Retouches retouches_;
    std::unordered_map<Format, QTextCharFormat, HachageFormat> formats_;
    double échelleMontrée_ = 0;
    QColor fondMontré_;
    bool enSynchro_ = false;
    bool enRetouche_ = false; // the widget's text follows the element's
};

} // namespace tirelune
