#include "exercises/ListeDeMots.h"

namespace tirelune {

namespace {

void MontrerPremier(ComboBox& liste)
{
    if (liste.ListCount() > 0)
        liste.Montrer(0);
}

} // namespace

void RemplirListe(ComboBox& liste, std::vector<Texte> mots)
{
    liste.AddItems(std::move(mots));
    MontrerPremier(liste);
}

void RetirerDeListe(ComboBox& liste, VueTexte mot)
{
    if (const int index = liste.Chercher(mot); index >= 0)
        liste.RemoveItem(index);
    MontrerPremier(liste);
}

void RefuserFrappe(Touche& touche)
{
    if (touche.Caractère != 0)
        touche.Avaler();
}

} // namespace tirelune
