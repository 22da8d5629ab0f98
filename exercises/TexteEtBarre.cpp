#include "exercises/TexteEtBarre.h"

namespace tirelune {

Arrangement TexteEtBarre(RichTextBox& texte, Arrangement barre, Frame& fin, TextBox& message, Button& quitter)
{
    return Pile{
        Colonne{Ressort{}, std::move(barre)},
        Libre{texte},
        Colonne{Ressort{}, Centré{Cadre{fin, AuMoins(4200, 0, Colonne{message, Centré{quitter}})}}, Ressort{}},
    };
}

} // namespace tirelune
