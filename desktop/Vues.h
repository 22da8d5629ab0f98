// A view for each kind of element.
#pragma once
#include "core/Elements.h"
#include "core/RichTextBox.h"
#include "desktop/Vue.h"

#include <memory>

namespace tirelune {

std::unique_ptr<Vue> Créer(Hôte& hôte, Label& label, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, Image& image, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, Frame& cadre, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, Button& bouton, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, CheckBox& case_, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, TextBox& boîte, QWidget* parent);
std::unique_ptr<Vue> CréerTexteALire(Hôte& hôte, TextBox& boîte, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, RichTextBox& boîte, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, ComboBox& combo, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, ListBox& liste, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, DriveListBox& lecteurs, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, DirListBox& dossiers, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, ScrollBar& barre, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, Rectangle& rectangle, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, Line& trait, QWidget* parent);
std::unique_ptr<Vue> Créer(Hôte& hôte, Toolbar& barre, QWidget* parent);

// The view that suits the element.
std::unique_ptr<Vue> CréerVue(Hôte& hôte, Elément& élément, QWidget* parent);

} // namespace tirelune
