// Two text boxes on a screen that does nothing, for the routines that work on boxes alone.
#pragma once
#include "core/Ecran.h"

namespace tirelune {

class EcranTexte final : public Ecran {
public:
    explicit EcranTexte(Application& application) : Ecran(application, "EcranTexte", u"") {}

    RichTextBox rtfTexte{*this, "rtfTexte"};
    RichTextBox rtfSauve{*this, "rtfSauve", {.Visible = false}};

private:
    Arrangement Disposer() override { return Colonne{rtfTexte, rtfSauve}; }
};

} // namespace tirelune
