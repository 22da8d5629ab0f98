#include "exercises/comprehension/frmQuestionnaire1.h"

#include "exercises/Conclure.h"
#include "followup/EnregistrerNotes.h"
#include "followup/GrilleRésultats.h"

#include <algorithm>
#include <cmath>

namespace tirelune {

namespace {

constexpr int PlaceDesQuestions = 1000; // twips from the text's left and from the top
constexpr int LargeurQuestions = 8400;  // twips
constexpr int HauteurQuestions = 7000;
constexpr double SecondesParJour = 86400;
constexpr VueTexte Vérifier = u"&Vérifier";
constexpr VueTexte Suivante = u"&Suivante";
constexpr VueTexte Fin = u"Fin du questionnaire";

} // namespace

frmQuestionnaire1::frmQuestionnaire1(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmQuestionnaire1", u"Questionnaire"), choix_(choix)
{
    for (auto* texte : {&Text1, &txtQuestion})
        texte->Locked = true;
    for (auto& texte : txtChoix)
        texte.Locked = true;
    rtfTexte.Locked = true;
    cmdCommencer.Click = [this] { cmdCommencer_Click(); };
    cmdOk.Click = [this] { cmdOk_Click(); };
    cmdVérifier.Click = [this] { cmdVérifier_Click(); };
    cmdQuitter.Click = [this] { cmdQuitter_Click(); };
    cmdInitialise.Click = [this] { PlacerQuestions(); };
    txtChoix.Click([this](int i) { txtChoix_Click(i); });
}

Arrangement frmQuestionnaire1::Disposer()
{
    std::vector<Arrangement> choix;
    choix.reserve(ChoixParQuestion);
    for (int i = 0; i < ChoixParQuestion; ++i)
        choix.emplace_back(Extensible(Ligne{chkRéponse(i), Extensible(txtChoix(i))}));
    const auto duCadre = [this](Arrangement un) { return Suite{frameQuestions, std::move(un)}; };
    return Page{{
        .Points = duCadre(BandeDePoints(lblPoints)),
        .Travail =
            Pile{Colonne{Ressort{}, Centré{Cadre{frameConsigne, AuMoins(9000, 0, AuMoins(0, 1500, Text1))}}, Ressort{}},
                 Libre{rtfTexte, Cadre{frameQuestions,
                                       Colonne{
                                           Ligne{Label1, lblNuméro, Ressort{}},
                                           txtQuestion,
                                           Extensible(Arrangement(Disposition::Colonne, std::move(choix))),
                                           lblOuiNon,

                                       }}}},
        .Pied = Pile{Ligne{duCadre(cmdQuitter), Extensible(lblConseil), cmdInitialise,
                           Pile{duCadre(cmdVérifier), Suite{frameConsigne, cmdCommencer}}},
                     cmdOk},
    }};
}

void frmQuestionnaire1::Load()
{
    rtfTexte.TextRTF(choix_.rtfTexte.TextRTF());
    rtfTexte.ToutFormater([](Format& format) { format.Barré = false; });
    if (TexteEnVue()) {
        if (!choix_.TrouverQuestionnaire()) {
            Décharger();
            return;
        }
        CommencerTexteEnVue();
    }
    AjouterNomElève();
}

bool frmQuestionnaire1::TexteEnVue() const
{
    return choix_.lblIndex.Caption == u"1";
}

void frmQuestionnaire1::CommencerTexteEnVue()
{
    frameQuestions.MouseMove = [this](double x, double y) { frameQuestions_MouseMove(x, y); };
    frameQuestions.DragDrop = [this](const Elément* cible, double x, double y) {
        frameQuestions_DragDrop(cible, x, y);
    };
    frameConsigne.Visible = false;
    cmdOk.Visible = false;
    rtfTexte.Visible = true;
    frameQuestions.BackColor = GrisClair; // by which the pupil is told to take it
    frameQuestions.Width = LargeurQuestions;
    PlacerQuestions();
    ChargerQuestions();
    lblConseil.Visible = true;
    frameQuestions.Visible = true;
    cmdInitialise.Visible = true;
}

void frmQuestionnaire1::PlacerQuestions()
{
    frameQuestions.Left = rtfTexte.Left + PlaceDesQuestions;
    frameQuestions.Top = PlaceDesQuestions;
}

void frmQuestionnaire1::Resize()
{
    AjusterBoîte(rtfTexte);
    cmdOk.Width = rtfTexte.Width;
    if (TexteEnVue())
        frameQuestions.Height = std::min(HauteurQuestions, rtfTexte.Height - PlaceDesQuestions);
    else if (frameQuestions.Visible)
        MontrerQuestionsSansTexte();
    if (cmdCommencer.Visible)
        cmdCommencer.Refresh();
}

// ---- Questionnaire (1): the reading ------------------------------------------------------------------------------

void frmQuestionnaire1::cmdCommencer_Click()
{
    frameConsigne.Visible = false;
    rtfTexte.Visible = true;
    cmdOk.Visible = true;
    état.TempsDébut = application_.plateforme.Horloge();
}

void frmQuestionnaire1::cmdOk_Click()
{
    auto secondes = application_.plateforme.Horloge() - état.TempsDébut;
    if (secondes < 0) // midnight has passed meanwhile
        secondes += SecondesParJour;
    rtfTexte.Visible = false;
    if (secondes <= 0) {
        Avertir(u"La lecture n'a duré aucun instant : ta vitesse ne peut pas être mesurée. Recommence ta lecture.");
        cmdOk.Visible = false;
        frameConsigne.Visible = true;
        return;
    }
    EnregistrerVitesse(secondes);
    if (!choix_.TrouverQuestionnaire()) {
        Décharger();
        return;
    }
    cmdOk.Visible = false;
    MontrerQuestionsSansTexte();
    ChargerQuestions();
    frameQuestions.Visible = true;
}

void frmQuestionnaire1::EnregistrerVitesse(double secondes)
{
    const auto& texte = rtfTexte.Text();
    const auto signes = std::count_if(texte.begin(), texte.end(), [](char16_t c) { return c != u' '; });
    const auto vitesse = EnTexte(static_cast<long long>(std::floor(static_cast<double>(signes) / secondes * 60)));
    auto& grille = choix_.fgRésultats;
    const int rangée = RangéeDuTexte(choix_, Rogner(choix_.lblTexte.Caption));
    choix_.lblVitesse.Caption = vitesse;
    grille.TextMatrix(rangée, ColonneVitesse, vitesse);
    MontrerVitesseMoyenne(choix_);
    SauverBilan(choix_);
}

void frmQuestionnaire1::MontrerQuestionsSansTexte()
{
    frameQuestions.Left = rtfTexte.Left;
    frameQuestions.Top = 0;
    frameQuestions.Width = rtfTexte.Width;
    frameQuestions.Height = rtfTexte.Height;
}

// ---- The questions ---------------------------------------------------------------------------------------------

void frmQuestionnaire1::ChargerQuestions()
{
    LireQuestions(EnChemin(état.NomFichierQuestions), fgQuestions);
    AfficherQuestion(0);
}

void frmQuestionnaire1::AfficherQuestion(int rangée)
{
    txtQuestion.Text = Rogner(fgQuestions.TextMatrix(rangée, ColonneQuestion));
    for (int i = 0; i < ChoixParQuestion; ++i) {
        txtChoix(i).Text = Rogner(fgQuestions.TextMatrix(rangée, ColonneChoix(i)));
        chkRéponse(i).Value = 0;
        txtChoix(i).Visible = !txtChoix(i).Text().empty();
        chkRéponse(i).Visible = txtChoix(i).Visible;
    }
}

void frmQuestionnaire1::txtChoix_Click(int i)
{
    if (cmdVérifier.Caption != Suivante)
        chkRéponse(i).Value = 1 - chkRéponse(i).Value;
    txtChoix(i).SelLength = 0;
}

void frmQuestionnaire1::cmdVérifier_Click()
{
    cmdQuitter.Visible = false;
    if (cmdVérifier.Caption == Fin) {
        cmdQuitter_Click();
        return;
    }
    if (cmdVérifier.Caption == Vérifier) {
        cmdVérifier.Caption = Texte{Suivante};
        for (auto& réponse : chkRéponse)
            réponse.Enabled = false;
        CorrigerQuestion();
        if (EstDernièreQuestion()) {
            cmdVérifier.FontSize = 10;
            cmdVérifier.Caption = Texte{Fin};
        }
        return;
    }
    cmdVérifier.Caption = Texte{Vérifier};
    for (auto& réponse : chkRéponse)
        réponse.Enabled = true;
    lblOuiNon.Visible = false;
    AfficherQuestion(Compte(lblNuméro));
    Incrémenter(lblNuméro);
}

bool frmQuestionnaire1::EstDernièreQuestion() const
{
    const int suivante = Compte(lblNuméro);
    return suivante >= QuestionsMaximum || Rogner(fgQuestions.TextMatrix(suivante, ColonneQuestion)).empty();
}

bool frmQuestionnaire1::RéponseJuste(int rangée) const
{
    for (int i = 0; i < ChoixParQuestion; ++i) {
        const double drapeau = Valeur(fgQuestions.TextMatrix(rangée, ColonneDrapeau(i)));
        if (chkRéponse(i).Visible && drapeau != chkRéponse(i).Value)
            return false;
    }
    return true;
}

void frmQuestionnaire1::CorrigerQuestion()
{
    const bool juste = RéponseJuste(Compte(lblNuméro) - 1);
    lblOuiNon.Caption = juste ? u"Bonne Réponse" : u"Mauvaise Réponse";
    lblOuiNon.ForeColor = juste ? VertFoncé : Rouge;
    if (juste)
        Incrémenter(lblPoints(0));
    Incrémenter(lblPoints(1));
    lblOuiNon.Visible = true;
}

void frmQuestionnaire1::cmdQuitter_Click()
{
    if (cmdVérifier.Caption == Fin)
        ConclureSurPoints(*this, choix_, lblPoints);
    else
        Décharger();
}

// ---- Questionnaire (2): the frame that can be dragged ------------------------------------------------------------

void frmQuestionnaire1::frameQuestions_MouseMove(double x, double y)
{
    if (état.SourisX != 0 || état.SourisY != 0)
        return; // the drag is under way
    état.SourisX = x;
    état.SourisY = y;
}

void frmQuestionnaire1::frameQuestions_DragDrop(const Elément* cible, double x, double y)
{
    const int gauche = cible == nullptr ? 0 : cible->Left();
    const int haut = cible == nullptr ? 0 : cible->Top();
    frameQuestions.Visible = true;
    frameQuestions.Left = static_cast<int>(gauche + x - état.SourisX);
    frameQuestions.Top = static_cast<int>(haut + y - état.SourisY);
    état.SourisX = 0;
    état.SourisY = 0;
}

} // namespace tirelune
