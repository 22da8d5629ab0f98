// The program: the toolkit, the screens, and the first screen in front.
#include "TableEcrans.h"
#include "core/Application.h"
#include "core/frmTirelune.h"
#include "desktop/PlateformeQt.h"
#include "desktop/Style.h"

#include <QApplication>

using namespace tirelune;

int main(int argc, char** argv)
{
    QApplication qt{argc, argv};
    QApplication::setApplicationName(QStringLiteral("Tirelune"));
    InstallerApparence();
    PlateformeQt plateforme;
    plateforme.MontrerFondDAbord();
    Application application{plateforme};
    RemplirTable(application);
    frmTirelune premier{application};
    premier.Afficher();
    return 0;
}
