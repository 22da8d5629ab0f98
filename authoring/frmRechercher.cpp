#include "authoring/frmRechercher.h"

#include "authoring/Recherche.h"

namespace tirelune {

frmRechercher::frmRechercher(Application& application, RichTextBox& rtfTexte, RichTextBox& rtfSauve)
    : Ecran(application, "frmRechercher", u"Rechercher"), rtfTexte_(rtfTexte), rtfSauve_(rtfSauve)
{
    PetiteFenêtre = true;
    LaisseVoir = true;
    cmdSuivant.Click = [this] { cmdSuivant_Click(); };
    cmdRemplacer.Click = [this] { cmdRemplacer_Click(); };
    cmdToutRemplacer.Click = [this] { cmdToutRemplacer_Click(); };
    cmdFermer.Click = [this] { Décharger(); };
    txtRechercher.Enter = [this] { cmdSuivant_Click(); };
    txtRemplacer.Enter = [this] { cmdRemplacer_Click(); };
}

Arrangement frmRechercher::Disposer()
{
    return Cadre{frameRechercher, // low, so that it covers little
                 Ligne{
                     Grille{2, {lblRechercher, AuMoins(3600, 0, txtRechercher), lblRemplacer, txtRemplacer}},
                     Grille{2, {cmdSuivant, cmdFermer, cmdRemplacer, cmdToutRemplacer}},
                 }};
}

void frmRechercher::Load()
{
    cmdRemplacer.ToolTipText = u"Remplacer";
    frameRechercher.Caption = état.ModeRechercher ? u"Rechercher" : u"Remplacer";
    lblRemplacer.Visible = !état.ModeRechercher;
    txtRemplacer.Enabled = !état.ModeRechercher;
    cmdToutRemplacer.Enabled = !état.ModeRechercher;
    txtRechercher.Text = Rogner(rtfTexte_.SelText());
}

void frmRechercher::Activate()
{
    if (!état.ModeRechercher)
        txtRemplacer.SetFocus();
}

void frmRechercher::KeyPress(Touche& touche)
{
    if (touche.Code != Touche::Echappement)
        return;
    touche.Avaler();
    Décharger();
}

bool frmRechercher::RienAChercher()
{
    if (!txtRechercher.Text().empty())
        return false;
    txtRechercher.SetFocus();
    return true;
}

void frmRechercher::GarderCopie()
{
    rtfSauve_.TextRTF(rtfTexte_.TextRTF());
    état.TexteModifié = true;
}

void frmRechercher::cmdSuivant_Click()
{
    if (RienAChercher())
        return;
    Chercheur chercheur{txtRechercher.Text()};
    if (const auto place = chercheur.Chercher(rtfTexte_.Text(), état.PositionRecherche)) {
        rtfTexte_.Sélectionner(*place, chercheur.Longueur());
        état.PositionRecherche = *place + chercheur.Longueur();
        return;
    }
    état.PositionRecherche = 0;
    if (!chercheur.Chercher(rtfTexte_.Text(), 0))
        Avertir(u"Aucune occurence trouvée pour la recherche en cours!", u"Aucun résultat");
}

void frmRechercher::cmdRemplacer_Click()
{
    if (!txtRemplacer.Enabled) {
        txtRemplacer.Enabled = true;
        cmdToutRemplacer.Enabled = true;
        txtRemplacer.SetFocus();
        return;
    }
    if (RienAChercher())
        return;
    GarderCopie();
    if (rtfTexte_.SelText() == txtRechercher.Text())
        rtfTexte_.SelText(txtRemplacer.Text());
}

void frmRechercher::cmdToutRemplacer_Click()
{
    if (RienAChercher())
        return;
    GarderCopie();
    if (auto remplacé = RemplacerTout(rtfTexte_.TextRTF(), txtRechercher.Text(), txtRemplacer.Text())) {
        rtfTexte_.TextRTF(std::move(remplacé->Contenu));
        rtfTexte_.SelStart(remplacé->Curseur);
    }
    Décharger();
}

} // namespace tirelune
