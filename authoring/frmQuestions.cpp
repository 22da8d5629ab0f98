#include "authoring/frmQuestions.h"

#include "core/FichierChamps.h"

#include <algorithm>
#include <array>

namespace tirelune {

namespace {

constexpr VueTexte PasDansLeTexte = u"Le texte ne le dit pas.";
constexpr std::array<VueTexte, ChoixParQuestion> ChoixAuDépart{u"C'est vrai.", u"C'est faux.", PasDansLeTexte,
                                                               PasDansLeTexte, PasDansLeTexte};
constexpr int ChoixProposés = 3; // of a question that comes new, or comes back without them

std::vector<EtatInitial> Choix()
{
    std::vector<EtatInitial> états;
    états.reserve(ChoixAuDépart.size());
    for (const auto choix : ChoixAuDépart)
        états.push_back({.Caption = Texte{choix},
                         .ToolTipText = états.empty() ? u" Vous pouvez modifier ou effacer ces libellés. "
                                                      : u" Une zone vide n'apparaîtra pas dans le module \"élève\". ",
                         .Libellé = u"Choix " + EnTexte(static_cast<int>(états.size()) + 1),
                         .PourFichier = true});
    return états;
}

// What has no question text is left out.
std::vector<Texte> ChampsDesQuestions(const Grid& grille)
{
    std::vector<Texte> champs;
    for (int rangée = 0; rangée < QuestionsMaximum; ++rangée) {
        if (Rogner(grille.TextMatrix(rangée, ColonneQuestion)).empty())
            continue;
        for (int colonne = 0; colonne < ChampsParQuestion; ++colonne)
            champs.push_back(grille.TextMatrix(rangée, colonne));
    }
    return champs;
}

} // namespace

frmQuestions::frmQuestions(Application& application)
    : Ecran(application, "frmQuestions", u"Q.C.M. (12 questions au maximum)"), txtChoix(*this, "txtChoix", Choix())
{
    cmdSuivante.Click = [this] { cmdSuivante_Click(); };
    cmdPrécédente.Click = [this] { cmdPrécédente_Click(); };
    cmdInsérer.Click = [this] { cmdInsérer_Click(); };
    cmdSupprimer.Click = [this] { cmdSupprimer_Click(); };
    cmdQuitter.Click = [this] { cmdQuitter_Click(); };
}

Arrangement frmQuestions::Disposer()
{
    std::vector<Arrangement> choix;
    choix.reserve(ChoixParQuestion + 1);
    for (int i = 0; i < ChoixParQuestion; ++i)
        choix.emplace_back(Ligne{chkRéponse(i), Extensible(txtChoix(i))});
    choix.emplace_back(Ressort{});
    return Colonne{
        Extensible(Cadre{frameQuestion,
                         Colonne{
                             Ligne{Label1, lblNuméro, Ressort{}, cmdInsérer, cmdSupprimer},
                             Extensible(txtQuestion),
                         }}),
        Extensible(Cadre{frameChoix, Arrangement(Disposition::Colonne, std::move(choix))}),
        Ligne{cmdPrécédente, cmdSuivante, Ressort{}, cmdQuitter},
    };
}

void frmQuestions::Load()
{
    static constexpr std::size_t Extension = 3; // letters
    const auto& texte = état.NomFichierTexte;
    état.NomFichierQuestions = Rogner(texte.substr(0, texte.size() - std::min(texte.size(), Extension))) + u"qst";
    Caption = Caption() + u" / " + état.NomFichierQuestions;
    ChargerQuestions();
}

void frmQuestions::Activate()
{
    txtQuestion.SetFocus();
}

void frmQuestions::QueryUnload()
{
    cmdQuitter_Click();
}

// ---- The file ----------------------------------------------------------------------------------------------------

void frmQuestions::ChargerQuestions()
{
    fichier_.Fichier = EnChemin(état.NomFichierQuestions);
    const auto champs = LireChamps(fichier_.Fichier);
    if (!champs)
        return;
    RangerQuestions(*champs, fgQuestions);
    fichier_.Remplaçable = NonVides(ChampsDesQuestions(fgQuestions)) == NonVides(*champs);
    Montrer(0);
}

// False: the file could not be written, and the user has been told.
bool frmQuestions::EnregistrerQuestions()
{
    Enregistrement enregistrement{application_};
    enregistrement.Ecrire(fichier_, ChampsDesQuestions(fgQuestions));
    return enregistrement.Conclure();
}

// ---- The screen and the grid -------------------------------------------------------------------------------------

void frmQuestions::Ranger()
{
    const int rangée = Rangée();
    fgQuestions.TextMatrix(rangée, ColonneQuestion, Rogner(txtQuestion.Text));
    for (int i = 0; i < ChoixParQuestion; ++i) {
        fgQuestions.TextMatrix(rangée, ColonneChoix(i), Rogner(txtChoix(i).Text));
        fgQuestions.TextMatrix(rangée, ColonneDrapeau(i), EnTexte(chkRéponse(i).Value));
    }
}

void frmQuestions::Montrer(int rangée)
{
    txtQuestion.Text = Rogner(fgQuestions.TextMatrix(rangée, ColonneQuestion));
    for (int i = 0; i < ChoixParQuestion; ++i) {
        txtChoix(i).Text = Rogner(fgQuestions.TextMatrix(rangée, ColonneChoix(i)));
        chkRéponse(i).Value = Valeur(fgQuestions.TextMatrix(rangée, ColonneDrapeau(i))) != 0 ? 1 : 0;
    }
}

void frmQuestions::CompléterChoix()
{
    for (int i = 0; i < ChoixProposés; ++i) {
        if (Rogner(txtChoix(i).Text).empty())
            txtChoix(i).Text = Texte{ChoixAuDépart[static_cast<std::size_t>(i)]};
    }
}

void frmQuestions::DéplacerRangée(int source, int cible)
{
    for (int colonne = 0; colonne < ChampsParQuestion; ++colonne) {
        fgQuestions.TextMatrix(cible, colonne, fgQuestions.TextMatrix(source, colonne));
        fgQuestions.TextMatrix(source, colonne, {});
    }
}

// ---- Buttons -----------------------------------------------------------------------------------------------------

void frmQuestions::cmdSuivante_Click()
{
    if (Rogner(txtQuestion.Text).empty()) {
        txtQuestion.SetFocus();
        return;
    }
    Ranger();
    static_cast<void>(EnregistrerQuestions()); // what could not be saved stays in the grid
    if (!EstChargé() || Compte(lblNuméro) >= QuestionsMaximum)
        return;
    Incrémenter(lblNuméro);
    Montrer(Rangée());
    CompléterChoix();
    txtQuestion.SetFocus();
}

void frmQuestions::cmdPrécédente_Click()
{
    if (Compte(lblNuméro) <= 1)
        return;
    Ranger();
    const bool enregistré = EnregistrerQuestions();
    if (!EstChargé())
        return;
    Incrémenter(lblNuméro, -1);
    Montrer(Rangée());
    if (enregistré) // else the user would be told twice
        static_cast<void>(EnregistrerQuestions());
    txtQuestion.SetFocus();
}

// What is on the screen and was not stored gives way to the new question.
void frmQuestions::cmdInsérer_Click()
{
    if (!fgQuestions.TextMatrix(QuestionsMaximum - 1, ColonneQuestion).empty()) {
        Avertir(u"Vous devez supprimer une question avant l'insertion.", u"12 questions");
        return;
    }
    for (int rangée = QuestionsMaximum - 2; rangée >= Rangée(); --rangée)
        DéplacerRangée(rangée, rangée + 1);
    txtQuestion.Text = Texte{};
    for (int i = 0; i < ChoixParQuestion; ++i) {
        txtChoix(i).Text = Texte{};
        chkRéponse(i).Value = 0;
    }
    CompléterChoix();
    txtQuestion.SetFocus();
}

void frmQuestions::cmdSupprimer_Click()
{
    for (int rangée = Rangée(); rangée < QuestionsMaximum - 1; ++rangée)
        DéplacerRangée(rangée + 1, rangée);
    for (int colonne = 0; colonne < ChampsParQuestion; ++colonne)
        fgQuestions.TextMatrix(QuestionsMaximum - 1, colonne, {});
    Montrer(Rangée());
    txtQuestion.SetFocus();
}

void frmQuestions::cmdQuitter_Click()
{
    Ranger();
    if (EnregistrerQuestions() || QuitterSansEnregistrer(application_))
        Décharger();
}

} // namespace tirelune
