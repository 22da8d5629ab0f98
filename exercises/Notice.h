// The notice that covers an exercise which can't be played, or has nothing left to play.
#pragma once
#include "core/Ecran.h"

namespace tirelune {

struct MotsDeNotice {
    VueTexte Titre;
    VueTexte Phrase;
    VueTexte Bouton;
};

inline constexpr MotsDeNotice PasAssezDeVocabulaire{
    u"Pas assez de vocabulaire sélectionné",
    u"Il doit y avoir au moins 5 mots de vocabulaire sélectionnés (en les barrant) pour lancer l'exercice.",
    u"&Abandonner",
};
inline constexpr MotsDeNotice PhrasesMalTaillées{
    u"Phrases trop courtes ou trop longues",
    u"L'exercice est terminé.",
    u"&Quitter",
};

// What its elements are called; two screens have names of their own for them.
struct NomsDeNotice {
    std::string_view Cadre = "frameQuitter";
    std::string_view Phrase = "Label2";
    std::string_view Bouton = "cmdAbandonner";
};

// Hidden at the start. The button closes the screen with no score, as long as the screen binds nothing else to it.
struct Notice {
    Notice(Ecran& écran, const MotsDeNotice& mots, const NomsDeNotice& noms = {});

    Frame Cadre;
    Label Phrase;
    Button Bouton;
};

Arrangement EnPlace(Notice& notice);

// Nothing else of the screen can be reached from now on.
void Montrer(Notice& notice);

} // namespace tirelune
