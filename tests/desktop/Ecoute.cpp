#include "tests/desktop/Atelier.h"

#include "desktop/Annonces.h"

#include <QAccessible>
#include <QCheckBox>

namespace tirelune {

namespace {

using Genre = QAccessible::Role;

struct EcranEntendu final : EcranEssai {
    using EcranEssai::EcranEssai;

    Label lblNom{*this, "lblNom", u" Choisis ton nom : "};
    TextBox txtNom{*this, "txtNom"};
    ComboBox cmbMots{*this, "cmbMots", {.Libellé = u"Mots enlevés"}};
    TextBox txtSeul{*this, "txtSeul", {.ToolTipText = u" Entrée pour valider "}};
    Button cmdOk{*this, "cmdOk", {.Caption = u"&Oui && non", .ToolTipText = u" Clique ici. "}};
    CheckBox chkRéponse{*this, "chkRéponse"};
    TextBox txtChoix{*this, "txtChoix", u"C'est vrai."};
    Label lblMot{*this, "lblMot", u"lune"};
    Label lblTitre{*this, "lblTitre", {.Caption = u"Consigne", .Gras = true}};
    Label lblVide{*this, "lblVide"};
    Label lblVerdict{
        *this, "lblVerdict", {.Caption = u"Bonne réponse", .ForeColor = VertFoncé, .SensDesCouleurs = Sens::Verdict}};
    Tableau<Label> lblPoints{*this, "lblPoints", {u"0", u"4", u" / "}};
    Image imgVisage{*this, "imgVisage", {.Libellé = u"Visage"}};
    Image imgDécor{*this, "imgDécor"};
    RichTextBox rtfTexte{*this, "rtfTexte"};
    Frame frameFin{*this, "frameFin", {.Caption = u"Texte complété", .Visible = false}};
    Button cmdQuitter{*this, "cmdQuitter", u"&Quitter"};

    Arrangement Disposer() override
    {
        return Pile{
            Colonne{
                lblNom,
                txtNom,
                Ligne{txtSeul, cmbMots, cmdOk},
                Ligne{chkRéponse, txtChoix},
                Ligne{lblMot, lblTitre, lblVide, Ressort{}, Ligne{lblPoints(0), lblPoints(2), lblPoints(1)}},
                Ligne{imgVisage, imgDécor, lblVerdict},
                rtfTexte,
            },
            Couverture{frameFin, Colonne{cmdQuitter}},
        };
    }
};

class Ecoute : public Atelier {
protected:
    Ecoute() { QAccessible::setActive(true); }
    ~Ecoute() override { QAccessible::setActive(false); }

    QAccessibleInterface& Entendu(const Elément& élément)
    {
        return *QAccessible::queryAccessibleInterface(&Widget(élément));
    }
    QString Nom(const Elément& élément) { return Entendu(élément).text(QAccessible::Name); }
    QStringList Actions(const Elément& élément) { return Entendu(élément).actionInterface()->actionNames(); }
    void Presser(const Elément& élément)
    {
        Entendu(élément).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCoreApplication::processEvents();
    }
    bool SePresse(const Elément& élément)
    {
        return Actions(élément).contains(QAccessibleActionInterface::pressAction());
    }
    // What has been read out last; nothing when nothing was.
    QString Dite()
    {
        const auto* annonce = dynamic_cast<const Annonce*>(Devant().findChild<QWidget*>(QStringLiteral("annonce")));
        return annonce != nullptr ? annonce->Dite() : QString{};
    }

    EcranEntendu écran{application};
    int clics = 0;
};

// The names of all that a screen reader can walk to.
QStringList NomsSous(QAccessibleInterface& haut)
{
    QStringList noms;
    for (int i = 0; i < haut.childCount(); ++i) {
        auto& enfant = *haut.child(i);
        if (!enfant.state().invisible)
            noms << enfant.text(QAccessible::Name) << NomsSous(enfant);
    }
    return noms;
}

} // namespace

TEST_F(Ecoute, UneLégendeSEntendSansSonEsperluette)
{
    Avec(écran, [&] {
        EXPECT_EQ(Nom(écran.cmdOk), "Oui & non");
        EXPECT_EQ(Entendu(écran.cmdOk).text(QAccessible::Description), "Clique ici.");
        EXPECT_EQ(Entendu(écran.cmdOk).role(), Genre::Button);
        EXPECT_EQ(Nom(écran.lblNom), "Choisis ton nom :");
    });
}

TEST_F(Ecoute, UnChampPorteLeNomDeLEtiquetteAuDessus)
{
    Avec(écran, [&] {
        EXPECT_EQ(Nom(écran.txtNom), "Choisis ton nom");
        écran.lblNom.Caption = u"Ton code :";
        Mettre();
        EXPECT_EQ(Nom(écran.txtNom), "Ton code");
        EXPECT_EQ(Nom(écran.txtSeul), "Entrée pour valider");
    });
}

TEST_F(Ecoute, UneListeDitSonNomPuisSaValeur)
{
    écran.cmbMots.AddItems({u"chat", u"pré"});
    Avec(écran, [&] {
        EXPECT_EQ(Entendu(écran.cmbMots).role(), Genre::ComboBox);
        EXPECT_EQ(Nom(écran.cmbMots), "Mots enlevés");
        écran.cmbMots.Montrer(1);
        Mettre();
        EXPECT_EQ(Nom(écran.cmbMots), "Mots enlevés : pré");
    });
}

TEST_F(Ecoute, UneCaseSansLégendeDitLeChoixQuElleCoche)
{
    Avec(écran, [&] {
        EXPECT_EQ(Entendu(écran.chkRéponse).role(), Genre::CheckBox);
        EXPECT_EQ(Nom(écran.chkRéponse), "C'est vrai.");
        écran.txtChoix.Text = u"C'est faux.";
        EXPECT_EQ(Nom(écran.chkRéponse), "C'est faux.");
        EXPECT_FALSE(Entendu(écran.chkRéponse).state().checked);
        Entendu(écran.chkRéponse).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCoreApplication::processEvents();
        EXPECT_TRUE(Entendu(écran.chkRéponse).state().checked);
        EXPECT_EQ(écran.chkRéponse.Value, 1);
    });
}

TEST_F(Ecoute, CeQuiRépondAuClicSePresse)
{
    écran.lblMot.Click = [this] { ++clics; };
    Avec(écran, [&] {
        EXPECT_EQ(Entendu(écran.lblMot).role(), Genre::Button);
        ASSERT_TRUE(SePresse(écran.lblMot));
        Presser(écran.lblMot);
        EXPECT_EQ(clics, 1);
        écran.lblMot.Enabled = false;
        Mettre();
        EXPECT_FALSE(SePresse(écran.lblMot));
        Presser(écran.lblMot);
        EXPECT_EQ(clics, 1);
        EXPECT_FALSE(SePresse(écran.lblNom));
    });
}

TEST_F(Ecoute, PresserNAttendPasLaFermetureDeCeQuiSOuvre)
{
    écran.lblMot.Click = [this] { application.Avertir(u"Attention"); };
    Avec(écran, [&] {
        Entendu(écran.lblMot).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(QApplication::activeModalWidget(), &Devant()); // no box yet
        Ensuite([] { QApplication::activeModalWidget()->close(); });
        QCoreApplication::processEvents();
        EXPECT_EQ(QApplication::activeModalWidget(), &Devant());
    });
}

TEST_F(Ecoute, ChaqueElémentDitCeQuIlEst)
{
    Avec(écran, [&] {
        EXPECT_EQ(Entendu(écran.lblMot).role(), Genre::StaticText);
        EXPECT_EQ(Entendu(écran.lblTitre).role(), Genre::Heading);
        EXPECT_EQ(Entendu(écran.imgVisage).role(), Genre::Graphic);
        EXPECT_EQ(Nom(écran.imgVisage), "Visage");
        EXPECT_TRUE(Entendu(écran.imgDécor).state().invisible);
        EXPECT_TRUE(Entendu(écran.lblVide).state().invisible);
        EXPECT_EQ(Entendu(écran.frameFin).role(), Genre::Grouping);
        auto& fenêtre = *QAccessible::queryAccessibleInterface(&Devant());
        EXPECT_EQ(fenêtre.role(), Genre::Window);
        EXPECT_EQ(fenêtre.text(QAccessible::Name), "Essai");
    });
}

TEST_F(Ecoute, CeQuiEstCouvertNeSEntendPas)
{
    Avec(écran, [&] {
        auto& fenêtre = *QAccessible::queryAccessibleInterface(&Devant());
        EXPECT_TRUE(NomsSous(fenêtre).contains("lune"));
        écran.frameFin.Visible = true;
        Mettre();
        EXPECT_FALSE(NomsSous(fenêtre).contains("lune"));
        EXPECT_TRUE(NomsSous(fenêtre).contains("Quitter"));
    });
}

TEST_F(Ecoute, LesLettresGrassesEtBarréesSontDites)
{
    TexteRiche texte{u"un deux trois\r\nquatre"};
    texte.Formater(3, 4, [](Format& format) { format.Gras = true; });
    texte.Formater(15, 6, [](Format& format) { format.Barré = true; });
    écran.rtfTexte.TextRTF(texte);
    Avec(écran, [&] {
        auto* lu = Entendu(écran.rtfTexte).textInterface();
        ASSERT_NE(lu, nullptr);
        EXPECT_EQ(lu->text(0, lu->characterCount()), "un deux trois\nquatre");
        int début = 0;
        int fin = 0;
        EXPECT_TRUE(lu->attributes(4, &début, &fin).contains("font-weight:bold;"));
        EXPECT_EQ(début, 3);
        EXPECT_EQ(fin, 7);
        EXPECT_TRUE(lu->attributes(8, &début, &fin).contains("font-weight:normal;"));
        EXPECT_EQ(début, 7);
        EXPECT_TRUE(lu->attributes(14, &début, &fin).contains("text-line-through-type:single;"));
        EXPECT_EQ(début, 14);
        EXPECT_EQ(fin, 20);
    });
}

TEST_F(Ecoute, UnTexteSePresseSurLeCaractèreDuCurseur)
{
    écran.rtfTexte.Text(u"un deux trois");
    écran.rtfTexte.Locked = true;
    écran.rtfTexte.Click = [this] { ++clics; };
    Avec(écran, [&] {
        auto& lu = *Entendu(écran.rtfTexte).textInterface();
        lu.setCursorPosition(4);
        Presser(écran.rtfTexte);
        EXPECT_EQ(clics, 1);
        EXPECT_EQ(écran.rtfTexte.SelStart(), 4U);
        QTest::keyClick(&Widget(écran.rtfTexte), Qt::Key_Right); // leads the caret that is heard
        EXPECT_EQ(lu.cursorPosition(), 5);
        QTest::keyClick(&Widget(écran.rtfTexte), Qt::Key_Return);
        EXPECT_EQ(clics, 2);
        EXPECT_EQ(écran.rtfTexte.SelStart(), 5U);
    });
}

TEST_F(Ecoute, CeQuiChangeEstAnnoncé)
{
    Avec(écran, [&] {
        EXPECT_EQ(Dite(), ""); // whoever comes walks through it
        écran.lblMot.Caption = u"soleil";
        Mettre();
        EXPECT_EQ(Dite(), "soleil");
        écran.lblPoints(0).Caption = u"1";
        écran.lblMot.Caption = u"étoile";
        Mettre();
        EXPECT_EQ(Dite(), "étoile. 1 sur 4");
        écran.frameFin.Visible = true;
        Mettre();
        EXPECT_EQ(Dite(), "Texte complété");
    });
}

TEST_F(Ecoute, UnEtatSeDitAprèsLeNom)
{
    écran.lblMot.Click = écran.txtChoix.Click = [] {};
    écran.txtChoix.Locked = true;
    Avec(écran, [&] {
        écran.lblMot.BackColor = Jaune;
        Mettre();
        EXPECT_EQ(Nom(écran.lblMot), "lune, choisi");
        EXPECT_EQ(Dite(), ""); // whoever chooses knows
        écran.lblMot.BackColor = Vert;
        Mettre();
        EXPECT_EQ(Nom(écran.lblMot), "lune, juste");
        EXPECT_EQ(Dite(), "lune, juste");
        écran.txtChoix.BackColor = Rouge;
        Mettre();
        EXPECT_EQ(Dite(), "C'est vrai., faux");
        écran.lblMot.BackColor = Blanc;
        écran.lblMot.Plaque = u"8";
        EXPECT_EQ(Nom(écran.lblMot), "lune, 8");
        écran.lblMot.Plaque = Texte{};
        écran.lblMot.Verrouillé = true;
        EXPECT_EQ(Nom(écran.lblMot), "lune, verrouillé");
        EXPECT_EQ(Nom(écran.lblVerdict), "Bonne réponse"); // its words say it
    });
}

TEST_F(Ecoute, UnCompteÀReboursNEstDitQuÀDixCinqEtZéro)
{
    écran.lblMot.Caption = u"12";
    Avec(écran, [&] {
        QStringList dites;
        for (int reste = 12; reste >= 0; --reste) {
            écran.lblMot.Caption = DepuisQString(QString::number(reste));
            Mettre();
            if (const auto une = Dite(); dites.isEmpty() || dites.back() != une)
                dites.push_back(une);
        }
        EXPECT_EQ(dites.join(u' ').trimmed(), "10 5 0");
    });
}

TEST_F(Ecoute, SansOutilQuiEcouteRienNEstAnnoncé)
{
    QAccessible::setActive(false);
    Avec(écran, [&] {
        écran.lblMot.Caption = u"soleil";
        Mettre();
        EXPECT_EQ(Devant().findChild<QWidget*>(QStringLiteral("annonce")), nullptr);
    });
}

} // namespace tirelune
