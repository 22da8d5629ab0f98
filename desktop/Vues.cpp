#include "desktop/Vues.h"

#include <cassert>

namespace tirelune {

namespace {

template <class... Genres>
std::unique_ptr<Vue> CréerParmi(Hôte& hôte, Elément& élément, QWidget* parent)
{
    std::unique_ptr<Vue> vue;
    const auto essayer = [&](auto* un) {
        if (un != nullptr)
            vue = Créer(hôte, *un, parent);
        return un != nullptr;
    };
    static_cast<void>((essayer(dynamic_cast<Genres*>(&élément)) || ...));
    return vue;
}

} // namespace

std::unique_ptr<Vue> CréerVue(Hôte& hôte, Elément& élément, QWidget* parent)
{
    // The commonest first.
    auto vue = CréerParmi<Label, Button, Frame, TextBox, RichTextBox, ComboBox, ListBox, CheckBox, Image, DriveListBox,
                          DirListBox, ScrollBar, Toolbar, Rectangle, Line>(hôte, élément, parent);
    assert(vue != nullptr && "an element of a kind that has no view stands in the arrangement");
    if (vue == nullptr)
        vue = std::make_unique<Vue>(hôte, élément, new QWidget{parent});
    vue->Revoir();
    return vue;
}

} // namespace tirelune
