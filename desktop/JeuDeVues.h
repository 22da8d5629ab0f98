// The views of a screen, in the order of their making, found by element or by widget.
#pragma once
#include "desktop/Vue.h"

#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tirelune {

class JeuDeVues {
public:
    Vue& Ajouter(std::unique_ptr<Vue> vue);
    // The widget is shown while the element is, though it stands elsewhere.
    void Suivre(const Elément& élément, QWidget& widget) { suites_.emplace_back(&élément, &widget); }
    void MontrerSuites() const;
    [[nodiscard]] Vue* VueDe(const Elément& élément) const;
    // The view of the widget, or of the nearest around it.
    [[nodiscard]] Vue* VueDuWidget(const QWidget* widget) const;

    [[nodiscard]] auto begin() const { return vues_.begin(); }
    [[nodiscard]] auto end() const { return vues_.end(); }

private:
    std::vector<std::unique_ptr<Vue>> vues_;
    std::vector<std::pair<const Elément*, QWidget*>> suites_;
    std::unordered_map<const Elément*, Vue*> parElément_;
    std::unordered_map<const QWidget*, Vue*> parWidget_;
};

} // namespace tirelune
