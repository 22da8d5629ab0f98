#include "desktop/JeuDeVues.h"

namespace tirelune {

Vue& JeuDeVues::Ajouter(std::unique_ptr<Vue> vue)
{
    auto& une = *vues_.emplace_back(std::move(vue));
    parElément_[&une.élément] = &une;
    if (une.widget != nullptr)
        parWidget_[une.widget] = &une;
    return une;
}

void JeuDeVues::MontrerSuites() const
{
    for (const auto& [élément, widget] : suites_) {
        if (widget->isHidden() != élément->Visible)
            continue;
        widget->setVisible(élément->Visible);
        widget->parentWidget()->update(); // it may paint a ground for what it shows
    }
}

Vue* JeuDeVues::VueDe(const Elément& élément) const
{
    const auto place = parElément_.find(&élément);
    return place == parElément_.end() ? nullptr : place->second;
}

Vue* JeuDeVues::VueDuWidget(const QWidget* widget) const
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto place = parWidget_.find(widget); place != parWidget_.end())
            return place->second;
    }
    return nullptr;
}

} // namespace tirelune
