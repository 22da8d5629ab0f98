// The window of a screen: it shows what has changed, and hands back keys, clicks, sizes and its closing.
#pragma once
#include "core/Ecran.h"
#include "desktop/Annonces.h"
#include "desktop/Batisseur.h"
#include "desktop/JeuDeVues.h"
#include "desktop/Vue.h"

#include <QPointer>
#include <QRect>
#include <QWidget>

#include <functional>
#include <vector>

class QScrollBar;

namespace tirelune {

class Bandeau;
class BarreMenus;
class Contenu;

class Fenêtre final : public QWidget, public Hôte {
public:
    // Over the window below it, if there is one.
    Fenêtre(Ecran& écran, const QWidget* dessous);
    ~Fenêtre() override;

    std::function<void()> Peinte; // it has painted its background

    // Shows the background alone; Ouvrir goes on from there.
    void MontrerFond();
    // Shows the window, and tells the screen its size.
    void Ouvrir();
    // Takes the window away; the screen is not touched any more.
    void Fermer();

    [[nodiscard]] Ecran& EcranDe() const { return écran_; }
    [[nodiscard]] int Pixels(int twips) const;
    [[nodiscard]] int Twips(int pixels) const;
    [[nodiscard]] QWidget* Plan() const;

    // Sets all that is marked, once.
    void Synchroniser();
    // Synchroniser, and paints now.
    void Repeindre();
    // The keyboard may have gone to another widget.
    void NoterFocus();
    // Keys go to the screen first, then to the element. True: swallowed.
    bool Filtrer(QObject* visé, QEvent* événement);

    // For its views.
    [[nodiscard]] bool Fermée() const override { return fermée_; }
    [[nodiscard]] double Echelle() const override { return échelle_; }
    void Dégager(const QRect& lieu) override;
    [[nodiscard]] QRect PassageChoisi() const override;
    void Marquer(Vue& vue) override;
    [[nodiscard]] Vue* VueDe(const Elément& élément) const override { return vues_.VueDe(élément); }
    [[nodiscard]] Vue* VueDuWidget(const QWidget* widget) const override { return vues_.VueDuWidget(widget); }
    [[nodiscard]] Chute TomberEn(QPoint global) const override;

protected:
    bool event(QEvent* événement) override;
    void closeEvent(QCloseEvent* événement) override;
    void keyPressEvent(QKeyEvent* événement) override;
    bool focusNextPrevChild(bool suivant) override;

private:
    void Eviter(const QRect& lieu);
    void Garnir();
    void OrdonnerTabulation();
    void Observer();

    void TailleChangée();
    void ChangerEchelle(double nouvelle);
    void SynchroniserFenêtre();
    void RevoirVues();
    void PlacerPosés();
    void NoterGéométrie(); // writes back where the elements stand
    void ResterAuDessus(); // of the window below, whatever becomes of both
    void DonnerFocus();
    void GarderFocus(); // the keyboard waits in the window itself when its element is gone
    [[nodiscard]] QScrollBar* BarreDeLecture() const;
    void Réveiller(); // asks for Synchroniser before the next events

    Ecran& écran_;
    const QWidget* dessous_;
    Contenu& contenu_; // under the menus
    BarreMenus* menus_ = nullptr;
    Bandeau* bandeau_ = nullptr; // of an exercise
    JeuDeVues vues_;
    Annonces annonces_{*this};
    Bâtisseur bâtisseur_;
    std::vector<Vue*> sales_;
    double échelle_ = 1;
    QRect pleine_;             // where it stands when it fills the display
    QPointer<QWidget> quitté_; // had the keyboard last: Tab goes on from there
    bool fermée_ = false;
    bool ouverte_ = false;
    bool réveillée_ = false;
    bool écranSale_ = true;
    bool tailleChangée_ = false;
    bool focusDemandé_ = false;
    bool enSynchro_ = false;
    bool focusÀNoter_ = false; // it has moved while the views were set
};

} // namespace tirelune
