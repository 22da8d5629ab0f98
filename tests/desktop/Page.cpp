// The page that all exercises share, and what stands for a state besides its colour.
#include "desktop/Apparence.h"
#include "desktop/Composants.h"
#include "tests/desktop/Atelier.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

namespace tirelune {

namespace {

struct EcranPage final : EcranEssai {
    using EcranEssai::EcranEssai;
    Label lblConsigne{*this, "lblConsigne", u"Clique sur un mot."};
    Label lblPoints{*this, "lblPoints", {.Caption = u"3", .BackColor = Jaune, .SensDesCouleurs = Sens::Rien}};
    RichTextBox rtf{*this, "rtf"};
    Frame cadre{*this, "cadre", {.Visible = false}};
    Button cmdSuivant{*this, "cmdSuivant", u"&Suivant"};
    Button cmdDuCadre{*this, "cmdDuCadre", u"&Vérifier"};
    Label lblMot{*this, "lblMot", {.Caption = u"mot", .ForeColor = Bleu}};
    Label lblVerdict{*this, "lblVerdict", {.Caption = u"Bonne Réponse", .SensDesCouleurs = Sens::Verdict}};

    Arrangement Disposer() override
    {
        return Page{{
            .Consigne = lblConsigne,
            .Points = lblPoints,
            .Travail = Pile{Libre{rtf}, Colonne{lblMot, lblVerdict, Ressort{}}, Cadre{cadre, Arrangement{}}},
            .Pied = Ligne{Suite{cadre, cmdDuCadre}, Ressort{}, cmdSuivant},
        }};
    }
};

class Pages : public Atelier {
protected:
    EcranPage écran{application};

    QRect Place(const Elément& élément)
    {
        auto& widget = Widget(élément);
        return {widget.mapTo(&Devant(), QPoint{0, 0}), widget.size()};
    }
    QImage Image(const Elément& élément) { return Widget(élément).grab().toImage(); }
};

} // namespace

TEST_F(Pages, LaBandeEtLaConsigneSontHorsDeLaTailleIntérieure)
{
    écran.Présentation = {.Titre = u"Le pendu", .NomElève = u"Léa", .Bande = Orange};
    Avec(écran, [&] {
        const auto& bandeau = *Devant().findChild<QWidget*>("bandeau");
        EXPECT_LE(bandeau.geometry().bottom(), Devant().Plan()->mapTo(&Devant(), QPoint{0, 0}).y());
        EXPECT_NEAR(écran.Height, Devant().Twips(Devant().height() - bandeau.height()), 15);
        EXPECT_TRUE(bandeau.geometry().contains(Place(écran.lblConsigne)));
        EXPECT_TRUE(bandeau.geometry().contains(Place(écran.lblPoints)));
        EXPECT_GT(Place(écran.lblPoints).center().x(), Devant().width() * 3 / 4) << "points stand at the right end";
        EXPECT_GT(Place(écran.cmdSuivant).center().x(), Devant().width() * 3 / 4) << "so does what comes next";
        EXPECT_GT(Place(écran.cmdSuivant).center().y(), Devant().height() * 3 / 4);
    });
}

TEST_F(Pages, LaSuiteDUnCadreSeMontreAvecLui)
{
    int clics = 0;
    écran.cmdDuCadre.Click = [&] { ++clics; };
    Avec(écran, [&] {
        EXPECT_FALSE(Widget(écran.cmdDuCadre).isVisible());
        EXPECT_FALSE(écran.cmdDuCadre.EstAtteignable());
        écran.cadre.Visible = true;
        Mettre();
        EXPECT_TRUE(Widget(écran.cmdDuCadre).isVisible());
        Cliquer(écran.cmdDuCadre);
        EXPECT_EQ(clics, 1);
        écran.cadre.Visible = false;
        Mettre();
        EXPECT_FALSE(Widget(écran.cmdDuCadre).isVisible());
    });
}

TEST_F(Pages, UnTexteÀLireADesLignesCourtesAuMilieu)
{
    écran.rtf.Locked = true;
    Texte long_;
    for (int i = 0; i < 80; ++i)
        long_ += u"le renard file ";
    écran.rtf.Text(long_);
    écran.àLaTaille = [&] {
        écran.rtf.Width = écran.Width - 150;
        écran.rtf.Height = écran.Height - 1100;
    };
    Avec(écran, [&] {
        Devant().resize(1600, 800);
        Mettre();
        auto& zone = Widget<QTextEdit>(écran.rtf);
        const auto bloc = zone.document()->firstBlock();
        const auto cadre = zone.document()->documentLayout()->blockBoundingRect(bloc);
        EXPECT_GT(bloc.layout()->lineCount(), 1);
        EXPECT_LE(bloc.layout()->lineAt(0).textLength(), 85); // some 75 of them
        EXPECT_NEAR(cadre.center().x(), zone.viewport()->width() / 2.0, 2);
        const double pas = bloc.layout()->lineAt(1).y() - bloc.layout()->lineAt(0).y();
        EXPECT_NEAR(pas / bloc.layout()->lineAt(0).height(), 1.4, 0.01);
    });
}

TEST_F(Pages, UnEtatSeVoitSansCouleur)
{
    EXPECT_EQ(SigneDe(écran.lblMot), Signe::Aucun);
    écran.lblMot.BackColor = Vert;
    EXPECT_EQ(SigneDe(écran.lblMot), Signe::Juste);
    écran.lblMot.BackColor = Rouge;
    EXPECT_EQ(SigneDe(écran.lblMot), Signe::Faux);
    écran.lblMot.BackColor = Jaune;
    EXPECT_EQ(SigneDe(écran.lblMot), Signe::Choisi);
    EXPECT_EQ(SigneDe(écran.lblPoints), Signe::Aucun) << "a count is no answer";
    écran.lblPoints.Verrouillé = true;
    EXPECT_EQ(SigneDe(écran.lblPoints), Signe::Verrou);
    écran.lblVerdict.ForeColor = VertFoncé;
    EXPECT_EQ(SigneDe(écran.lblVerdict), Signe::Juste);
    écran.lblVerdict.ForeColor = Rouge;
    EXPECT_EQ(SigneDe(écran.lblVerdict), Signe::Faux);
    écran.lblVerdict.BackColor = Vert;
    EXPECT_EQ(SigneDe(écran.lblVerdict), Signe::Faux) << "its letters tell";
}

// Two grounds that a colour-blind eye takes for one another still differ by their signs.
TEST_F(Pages, LeSigneEstPeint)
{
    écran.lblMot.Click = [] {};
    Avec(écran, [&] {
        const auto bout = [&](Couleur fond) {
            écran.lblMot.BackColor = fond;
            Mettre();
            const auto image = Image(écran.lblMot);
            int encre = 0;
            for (int y = 8; y < image.height() - 10; ++y) {
                for (int x = image.width() - 28; x < image.width() - 9; ++x)
                    encre += image.pixelColor(x, y) != image.pixelColor(image.width() / 2, image.height() / 2) ? 1 : 0;
            }
            return encre;
        };
        EXPECT_EQ(bout(BleuClair), 0);
        EXPECT_GT(bout(Vert), 20);
        EXPECT_GT(bout(Rouge), 20);
        EXPECT_GT(bout(Jaune), 20);
        écran.lblMot.Verrouillé = true;
        EXPECT_GT(bout(Blanc), 20);
    });
}

namespace {

int Compter(const QImage& image, const QColor& couleur)
{
    int points = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            points += image.pixelColor(x, y) == couleur ? 1 : 0;
    }
    return points;
}

} // namespace

namespace {

// How often the widget is painted while it is there.
class CompteurDePeintures final : public QObject {
public:
    explicit CompteurDePeintures(QWidget& widget) { widget.installEventFilter(this); }
    int fois = 0;
    bool eventFilter(QObject* /*visé*/, QEvent* événement) override
    {
        fois += événement->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace

TEST_F(Pages, UnSigneNouveauSePeintAussitôt)
{
    écran.lblMot.Click = [] {};
    Avec(écran, [&] {
        Mettre();
        QCoreApplication::processEvents();
        CompteurDePeintures compteur{Widget(écran.lblMot)};
        écran.lblMot.Verrouillé = true;
        Mettre();
        QCoreApplication::processEvents();
        EXPECT_GT(compteur.fois, 0);
    });
}

TEST_F(Pages, UnPictogrammeInvisibleSurSonFondReçoitUnePlaque)
{
    static constexpr Couleur BleuProfond = Couleur::Rvb(15, 74, 134);
    écran.lblMot.ForeColor = Noir;
    écran.lblMot.Picture = Dessin{10, 10, {{GenreForme::Ellipse, {{1, 1}, {9, 9}}, BleuProfond, 1}}};
    écran.lblMot.Click = [] {};
    écran.lblMot.BackColor = Rouge;
    Avec(écran, [&] {
        EXPECT_GT(Compter(Image(écran.lblMot), Qt::white), 50) << "blue on red";
        écran.lblMot.BackColor = Jaune;
        Mettre();
        EXPECT_EQ(Compter(Image(écran.lblMot), Qt::white), 0) << "blue on yellow shows";
    });
}

TEST_F(Pages, UneLégendeCompteAvecCeQuiSeTientAuprès)
{
    écran.lblMot.Click = [] {};
    écran.lblMot.Caption = Texte(40, u'm');
    Avec(écran, [&] {
        auto& étiquette = Widget<Etiquette>(écran.lblMot);
        étiquette.setParent(&Devant()); // out of its layout
        étiquette.resize(étiquette.sizeHint());
        ASSERT_TRUE(étiquette.MontreTout());
        const auto juste = étiquette.font().pixelSize() * 12; // at the smallest letters, the caption alone
        étiquette.resize(juste, étiquette.height());
        ASSERT_TRUE(étiquette.MontreTout());
        étiquette.plaque = QStringLiteral("10");
        étiquette.pictogramme = Dessin{10, 10, {{GenreForme::Ellipse, {{1, 1}, {9, 9}}}}};
        étiquette.resize(étiquette.font().pixelSize() * 4, étiquette.height());
        EXPECT_FALSE(étiquette.MontreTout());
    });
}

TEST_F(Pages, LesBoutonsDuPiedOntUneSeuleTaille)
{
    écran.cadre.Visible = true;
    écran.cmdSuivant.FontSize = 10;
    Avec(écran, [&] {
        EXPECT_EQ(Widget(écran.cmdSuivant).font(), Widget(écran.cmdDuCadre).font());
        EXPECT_GT(Widget(écran.cmdSuivant).font().pixelSize(), Widget(écran.lblVerdict).font().pixelSize());
    });
}

TEST_F(Pages, UnPiedSansBoutonLaisseVoirLeTravail)
{
    écran.cmdSuivant.Visible = false;
    écran.BackColor = Olive;
    Avec(écran, [&] {
        const auto bas = [&] {
            return Devant().grab().toImage().pixelColor(Devant().width() / 2, Devant().height() - 8);
        };
        EXPECT_NE(bas(), Teinte::Panneau);
        écran.cmdSuivant.Visible = true;
        Mettre();
        EXPECT_EQ(bas(), Teinte::Panneau);
    });
}

TEST_F(Pages, UneLettreIllisibleSurSonFondReçoitUnePlaque)
{
    écran.lblMot.Click = [] {};
    écran.lblMot.BackColor = Rouge;
    Avec(écran, [&] {
        const auto contient = [&](const QColor& couleur) {
            const auto image = Image(écran.lblMot);
            int points = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width() / 2; ++x)
                    points += image.pixelColor(x, y) == couleur ? 1 : 0;
            }
            return points > 50;
        };
        EXPECT_TRUE(contient(Qt::white)) << "blue on red";
        écran.lblMot.ForeColor = Noir;
        Mettre();
        EXPECT_FALSE(contient(Qt::white)) << "black on red can be read";
        écran.lblMot.ForeColor = Rouge;
        Mettre();
        EXPECT_FALSE(contient(Qt::white)) << "the same colour twice hides on purpose";
    });
}

TEST_F(Pages, CeQuiSeCliqueEstAssezGrand)
{
    écran.lblMot.Click = [] {};
    Avec(écran, [&] {
        Devant().resize(1366, 748);
        Mettre();
        EXPECT_GE(Widget(écran.lblMot).sizeHint().height(), 40);
        EXPECT_GE(Widget(écran.cmdSuivant).sizeHint().height(), 40);
        EXPECT_GE(Widget(écran.lblMot).font().pixelSize(), 18);
    });
}

// The desktop's colours, put back at the end.
class PanneauNoir {
public:
    PanneauNoir() { Teinte::Panneau = Qt::black, Teinte::Tranche = Qt::white; }
    PanneauNoir(const PanneauNoir&) = delete;
    PanneauNoir& operator=(const PanneauNoir&) = delete;
    ~PanneauNoir() { Teinte::Panneau = panneau_, Teinte::Tranche = tranche_; }

private:
    const QColor panneau_ = Teinte::Panneau;
    const QColor tranche_ = Teinte::Tranche;
};

TEST_F(Pages, UnBordEtUnDessinSeVoientSurUnPanneauNoir)
{
    const PanneauNoir noir;
    écran.lblMot.Click = [] {};
    écran.lblMot.BackColor = Blanc;
    Avec(écran, [&] {
        const auto image = Image(écran.lblMot);
        EXPECT_NE(image.pixelColor(image.width() / 2, image.height() - 1), QColor{Qt::white});
        ImageDessinée axes{nullptr};
        axes.clic = [] {};
        axes.RendreCliquable(true);
        axes.dessin = Dessin{10, 10, {{GenreForme::Tracé, {{0, 5}, {10, 5}}, Noir, 2}}};
        axes.resize(60, 40);
        EXPECT_EQ(axes.grab().toImage().pixelColor(30, 8), QColor{Qt::white});
    });
}

TEST(Contrastes, LEncreChoisieSeLit)
{
    EXPECT_NEAR(Contraste(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(Contraste(QColor{255, 0, 0}, QColor{255, 0, 0}), 1, 1e-9);
    EXPECT_NEAR(Contraste(QColor{0x76, 0x76, 0x76}, Qt::white), 4.54, 0.01);
    EXPECT_EQ(EncreSur(Qt::white, Teinte::Encre), Teinte::Encre);
    EXPECT_EQ(EncreSur(Qt::blue, Teinte::Encre), QColor{Qt::white});
    EXPECT_EQ(EncreSur(Qt::yellow, Qt::white), Teinte::Encre);
}

} // namespace tirelune
