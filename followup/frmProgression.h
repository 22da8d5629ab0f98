// Curves of one group of exercises: the pupil's scores against the texts, in the order of study.
#pragma once
#include "core/Ecran.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmProgression final : public Ecran {
public:
    explicit frmProgression(frmExercices& choix);

    // The plot, in units of its own; the curves lie on the axes.
    Line lineAbs, lineOrd;
    Tableau<Line> Line2{*this, "Line2", 11};
    Tableau<Label> Label2;
    Label Label1;
    Tableau<Line> Line3{*this, "Line3", 7, {.Visible = false}};
    Tableau<Label> lblLégende;
    Image imgCourbes{*this, "imgCourbes", {.Libellé = u"Courbes"}};

    Label Label3;
    Button cmdQuitter{*this, "cmdQuitter", u"&Quitter"};

private:
    void Load() override;
    Arrangement Disposer() override;

    void lblLégende_Click(int courbe);
    void TracerAxes();
    void MontrerLégende();
    void TracerCourbe(int groupe, int courbe);

    frmExercices& choix_;
};

} // namespace tirelune
