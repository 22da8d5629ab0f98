#include "tests/desktop/Clics.h"

#include "TableEcrans.h"
#include "core/FichierChamps.h"
#include "followup/EnregistrerNotes.h"
#include "followup/GrilleRésultats.h"

#include <QAction>
#include <QDialog>
#include <QFileDialog>
#include <QToolButton>

#include <filesystem>
#include <fstream>

namespace tirelune {

using namespace std::chrono_literals;

namespace {

const std::filesystem::path Sources{DOSSIER_SOURCES};

} // namespace

Ecrans::Ecrans()
{
    RemplirTable(application);
    const auto chemin = DepuisQString(dossier.path());
    application.état.CheminAppli = chemin;
    application.état.CheminBilans = chemin;
    const auto bilan = EnChemin(Joindre(chemin, u"Léa.bil"));
    std::vector<Texte> fiche(1 + NombreColonnes); // a file that is whole is read at once
    fiche[0] = Marqueur;
    std::ofstream{bilan} << ComposerChamps(fiche).value();
    std::filesystem::last_write_time(bilan, std::filesystem::file_time_type::clock::now() - 24h); // nobody is at it
    for (const auto* suffixe : {".rtf", ".qst"}) {
        const auto nom = std::string{"La course des escargots"} + suffixe;
        std::filesystem::copy_file(Sources / "textes" / nom, EnChemin(chemin) / nom);
    }
    for (const auto* nom : {"DicPrinc.dat", "Familles.dat", "Synonymes.dat", "Contraires.dat", "Genre.dat",
                            "La course des escargots.dic"})
        std::filesystem::copy_file(Sources / "textes" / nom, EnChemin(chemin) / nom);
    accueil.Charger();
    choix.Charger();
    choix.cmbNoms.Choisir(choix.cmbNoms.Chercher(u"Léa"));
    choix.cmdOk.Cliquer();
    Ensuite([chemin] {
        auto& dialogue = dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
        dialogue.selectFile(EnQString(Joindre(chemin, u"La course des escargots.rtf")));
        QMetaObject::invokeMethod(&dialogue, "accept");
    });
    choix.cmdCharger.Cliquer();
    choix.lblIndex.Caption = u"2";
    EnregistrerNote(choix, 8); // there is a curve to draw
    application.état.GroupeCourbes = 1;
    choix.lblVitesse.Caption = u"100"; // the first exercise is done: all others are open
    éditeur.Charger();
    éditeur.rtfTexte.Text(u"Le chat dort. Le chien aboie.");
}

Noms Ecrans::Table() const
{
    Noms noms;
    for (const auto& [nom, rangée] : application.écrans)
        noms.emplace(nom);
    return noms;
}

std::unique_ptr<Ecran> Ecrans::Créer(const std::string& nom)
{
    application.état.NomFichierTexte = Joindre(application.état.CheminAppli, u"Le chat.rtf"); // the editor's tools ask
    for (Ecran* ouvreur : std::initializer_list<Ecran*>{&accueil, &éditeur, &choix}) {
        try {
            return application.écrans.find(nom)->second(*ouvreur);
        } catch (const std::bad_cast&) { // this one doesn't open it
        }
    }
    ADD_FAILURE() << nom << " : aucun ouvreur ne convient";
    return nullptr;
}

void Ecrans::Montrer(const std::string& nom, const std::function<void(Ecran&)>& script)
{
    const auto écran = Créer(nom);
    if (écran == nullptr)
        return;
    EXPECT_EQ(écran->Nom, nom);
    Avec(*écran, [&] {
        if (!écran->PetiteFenêtre)
            Devant().setGeometry(0, 0, 800, 600);
        Mettre();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        Mettre();
        script(*écran);
    });
    EXPECT_FALSE(écran->EstChargé());
    EXPECT_EQ(plateforme.Devant(), nullptr);
}

void Ecrans::SurChacun(const std::function<void(Ecran&)>& script)
{
    for (const auto& nom : Table()) {
        SCOPED_TRACE(nom);
        Montrer(nom, script);
    }
}

bool Ecrans::EstTouché(const QWidget& widget, QPoint lieu)
{
    const auto* touché = Devant().childAt(widget.mapTo(&Devant(), lieu));
    return touché == &widget || widget.isAncestorOf(touché);
}

// ---- Clicks ----------------------------------------------------------------------------------------------------

void Clics::Presser(Elément& élément, std::vector<Clic>& clics)
{
    auto* vue = Devant().VueDe(élément);
    if (vue == nullptr || vue->widget == nullptr)
        return;
    auto* widget = vue->widget;
    const bool cadre = dynamic_cast<Frame*>(&élément) != nullptr;
    const auto lieu = cadre ? QPoint{widget->width() / 2, 3} : widget->rect().center();
    const auto donner = [this, widget, lieu] {
        EXPECT_TRUE(EstTouché(*widget, lieu)) << widget->objectName().toStdString();
        auto* touché = Devant().childAt(widget->mapTo(&Devant(), lieu));
        ASSERT_NE(touché, nullptr);
        QTest::mouseClick(touché, Qt::LeftButton, {}, touché->mapFrom(&Devant(), widget->mapTo(&Devant(), lieu)));
    };
    clics.push_back({élément.Nom, donner, widget, lieu});
}

std::vector<Clic> Clics::Recenser(Ecran& écran)
{
    std::vector<Clic> clics;
    for (auto* élément : écran.Eléments()) {
        if (auto* option = dynamic_cast<MenuOption*>(élément)) {
            auto* action = Devant().findChild<QAction*>(EnQString(option->Nom));
            if (!option->Click || action == nullptr || !action->isEnabled() || !action->isVisible())
                continue;
            Compter(option->Click);
            clics.push_back({option->Nom, [action] { action->trigger(); }});
            continue;
        }
        if (!élément->EstAtteignable() || !élément->Enabled)
            continue;
        if (auto* légendé = dynamic_cast<Légendé*>(élément); légendé != nullptr && légendé->Click) {
            Compter(légendé->Click);
            Presser(*légendé, clics);
        } else if (auto* boîte = dynamic_cast<TextBox*>(élément); boîte != nullptr && boîte->Click) {
            Compter(boîte->Click);
            Presser(*boîte, clics);
        } else if (auto* texte = dynamic_cast<RichTextBox*>(élément); texte != nullptr && texte->Click) {
            Compter(texte->Click);
            Presser(*texte, clics);
        } else if (auto* barre = dynamic_cast<Toolbar*>(élément); barre != nullptr) {
            barre->ButtonClick = [this, vrai = barre->ButtonClick](std::string_view clé) {
                ++réponses;
                vrai(clé);
            };
            for (auto* bouton : Widget(*barre).findChildren<QToolButton*>())
                clics.push_back({bouton->objectName().toStdString(),
                                 [bouton] { QTest::mouseClick(bouton, Qt::LeftButton); }, bouton,
                                 bouton->rect().center()});
        }
    }
    return clics;
}

void Clics::Sortir(Ecran& écran)
{
    if (auto* dialogue = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        dialogue->reject();
    else if (&Devant().EcranDe() != &écran)
        Devant().EcranDe().Décharger();
    else
        écran.Décharger();
}

void Clics::SurChaqueClic(const std::function<void(Ecran&, const Clic&)>& script)
{
    for (const auto& nom : Table()) {
        SCOPED_TRACE(nom);
        std::vector<std::string> àCliquer;
        Montrer(nom, [&](Ecran& écran) {
            for (const auto& clic : Recenser(écran))
                àCliquer.push_back(clic.Nom);
        });
        EXPECT_FALSE(àCliquer.empty());
        for (const auto& cliqué : àCliquer) {
            SCOPED_TRACE(cliqué);
            Montrer(nom, [&](Ecran& écran) {
                réponses = 0;
                for (const auto& clic : Recenser(écran)) { // a sentence drawn anew may have fewer words
                    if (clic.Nom == cliqué)
                        script(écran, clic);
                }
            });
        }
    }
}

} // namespace tirelune
