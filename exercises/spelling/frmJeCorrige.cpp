#include "exercises/spelling/frmJeCorrige.h"

#include "core/Fonctions.h"
#include "core/Tirage.h"
#include "exercises/Conclure.h"
#include "exercises/DoubleClic.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr VueTexte FautesMaximum = u"20";
constexpr int EssaisMaximum = 1000;
constexpr int MargeDuTexte = 1200; // twips, below it

} // namespace

frmJeCorrige::frmJeCorrige(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmJeCorrige", u"Je corrige"), choix_(choix)
{
    rtfCorrige.Locked = true;
    for (int i = 0; i < lblSon.Nombre(); ++i)
        lblSon(i).Caption = Texte{Graphèmes[static_cast<std::size_t>(i)]};
    rtfCorrige.Click = [this] { rtfCorrige_Click(); };
    rtfCorrige.DblClick = [this] { rtfCorrige_DblClick(); };
    rtfCorrige.SelChange = [this] { EffacerSélectionRefusée(rtfCorrige); };
    txtMot.Enter = [this] { cmdOk_Click(); };
    cmdOk.Click = [this] { cmdOk_Click(); };
    fin.Bouton.Click = [this] { ConclureSurPoints(*this, choix_, lblPoints); };
}

Arrangement frmJeCorrige::Disposer()
{
    return Page{{
        .Consigne = lblConsigne,
        .Points = BandeDePoints(lblPoints),
        .Travail = Libre{rtfCorrige},
        .Pied = Ligne{Extensible(AuMoins(3600, 0, txtMot)), Ressort{}, cmdOk},
        .Dessus = EnPlace(fin),
    }};
}

void frmJeCorrige::Load()
{
    AjouterNomElève();
    état.CorrectionEnCours = false;
    PoserFautes();
    rtfCorrige.Visible = true;
    rtfCorrige.SetFocus();
    rtfCorrige.Refresh();
}

void frmJeCorrige::Activate()
{
    if (!lblGraphèmes.Caption().empty())
        return;
    Avertir(u"Ce texte ne convient pas à cet exercice : je n'y trouve rien où mettre une faute !");
    Décharger();
}

void frmJeCorrige::Resize()
{
    AjusterBoîte(rtfCorrige, MargeDuTexte);
}

// ---- The faults --------------------------------------------------------------------------------------------------

void frmJeCorrige::PoserFautes()
{
    EcrireAlphabetSimple(état);
    auto texte = choix_.rtfTexte.TextRTF();
    texte.Formater(0, texte.Longueur(), [](Format& format) {
        format.Teinte = Bleu;
        format.Souligné = false;
        format.Barré = false;
    });
    auto caractères = texte.Caractères();
    PlacesDesGraphèmes places{caractères};
    std::vector<Passage> fautifs;
    for (int essai = 0; essai < EssaisMaximum && lblGraphèmes.Caption != FautesMaximum; ++essai)
        PoserFaute(caractères, places, fautifs);
    texte.Transcrire(std::move(caractères));
    for (const auto& mot : fautifs)
        texte.Formater(mot.Début, mot.Longueur(), [](Format& format) { format.Teinte = Violet; });
    rtfCorrige.TextRTF(std::move(texte));
}

void frmJeCorrige::PoserFaute(Texte& texte, PlacesDesGraphèmes& places, std::vector<Passage>& fautifs)
{
    const auto son = Tirer(application_.plateforme, lblSon.Nombre());
    auto& cherché = lblSon(static_cast<int>(son));
    if (cherché.Caption().empty())
        return;
    auto& remplaçant = lblSon(static_cast<int>(son ^ 1U));
    const auto départ = Tirer(application_.plateforme, static_cast<double>(texte.size()));
    const auto place = places.Chercher(son, départ);
    if (!place)
        return;
    const auto bout = *place + remplaçant.Caption().size();
    const bool dansUnFautif = std::any_of(fautifs.begin(), fautifs.end(),
                                          [&](const Passage& mot) { return *place < mot.Fin && mot.Début < bout; });
    if (dansUnFautif)
        return;
    texte.replace(*place, bout - *place, remplaçant.Caption);
    places.Noter(*place);
    cherché.Caption = Texte{};
    remplaçant.Caption = Texte{};
    fautifs.push_back(MotAutour(texte, bout - 1, état.LettresEtChiffres));
    Incrémenter(lblGraphèmes);
}

// ---- The correction ----------------------------------------------------------------------------------------------

void frmJeCorrige::CacherRéponse()
{
    txtMot.Visible = false;
    txtMot.Text = Texte{};
    cmdOk.Visible = false;
}

void frmJeCorrige::rtfCorrige_Click()
{
    CacherRéponse();
    const auto place = rtfCorrige.SelStart();
    if (place >= rtfCorrige.Longueur())
        return;
    const auto mot = MotAutour(rtfCorrige.Text(), place, état.LettresEtChiffres);
    rtfCorrige.Sélectionner(mot.Début, mot.Longueur());
    if (mot.Longueur() == 0 || rtfCorrige.SelColor() != Violet) {
        rtfCorrige.Sélectionner(place, 0);
        return;
    }
    txtMot.Visible = true;
    cmdOk.Visible = true;
    txtMot.SetFocus();
}

void frmJeCorrige::rtfCorrige_DblClick()
{
    CacherRéponse();
    RefuserDoubleClic(rtfCorrige, u"Clique UNE SEULE FOIS sur les mots écrits en violet !");
}

void frmJeCorrige::cmdOk_Click()
{
    const auto réponse = Rogner(txtMot.Text);
    if (réponse.empty()) {
        txtMot.Text = Texte{};
        return;
    }
    choix_.rtfTexte.Sélectionner(rtfCorrige.SelStart(), rtfCorrige.SelLength());
    const auto juste = choix_.rtfTexte.SelText();
    Corriger(juste, Majuscules(réponse) == Majuscules(juste));
    CacherRéponse();
    if (rtfCorrige.Text() == choix_.rtfTexte.Text())
        Montrer(fin);
    else
        rtfCorrige.SetFocus();
}

// Letter for letter: each keeps the format that it had.
void frmJeCorrige::Corriger(VueTexte juste, bool trouvé)
{
    rtfCorrige.SelColor = trouvé ? VertFoncé : Rouge;
    if (trouvé)
        Incrémenter(lblPoints(0));
    Incrémenter(lblPoints(1));
    rtfCorrige.SelUnderline = true;
    auto texte = rtfCorrige.Text();
    texte.replace(rtfCorrige.SelStart(), juste.size(), juste);
    rtfCorrige.Transcrire(std::move(texte));
    rtfCorrige.SelStart(rtfCorrige.SelStart() + juste.size()); // its colour shows
}

} // namespace tirelune
