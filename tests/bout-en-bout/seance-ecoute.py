#!/usr/bin/python3
"""What someone hears who doesn't see the screen: every screen is walked through as assistive tools walk it."""

import os
import re
import sys

import pilote

TITRE = "La course des escargots"
EXERCICES = 27
QUESTIONNAIRE_2 = 1
# As elements are called in the sources: "cmdOk", "lblMot(3)", "Label1".
IDENTIFIANT = re.compile(r"(frm|cmd|lbl|txt|cmb|rtf|mnu|chk|img)\w*(\(\d+\))?|"
                         r"(frame|lst|tlb|btn|drv|dir|scrl|Label|Text|Image|Line)([A-ZÉ0-9]\w*)?(\(\d+\))?")
CHAMPS = ("text", "password text", "combo box", "list", "check box", "scroll bar")
MUETS = ("filler", "panel", "scroll pane", "separator", "menu bar", "notification")  # what they hold is heard
SANS_LIBELLE = ("", "Saisie", "Liste", "Défilement")  # the last resort of what has no name of its own
PRESSIONS = {"Press", "Toggle", "ShowMenu"}


def fautes(element):
    """What is wrong with one element that is shown."""
    nom, role = element.nom.strip(), element.role
    if not nom and role not in MUETS:
        yield "has no name"
    if nom and (nom == element.identifiant or IDENTIFIANT.fullmatch(nom)):
        yield f"is named like an identifier: {nom!r}"
    if re.search(r"&\w", nom):
        yield f"tells the sign of its shortcut: {nom!r}"
    if role in CHAMPS and nom.partition(" : ")[0] in SANS_LIBELLE:
        yield f"is a field without a label: {nom!r}"
    if element.montre_la_main and not PRESSIONS.intersection(element.actions):
        yield f"answers a click and offers no press: {nom!r}"


def ecouter(p, ecran):
    """Walk through the window in front."""
    fenetre = p.fenetre()
    p.verifier(fenetre.role in ("frame", "dialog") and fenetre.nom and not IDENTIFIANT.fullmatch(fenetre.nom),
               f"{ecran}: the window carries its title: {fenetre.role} {fenetre.nom!r}")
    trouvees = [f"{element.identifiant or '?'} ({element.role}) {faute}" for element in fenetre.descendants()
                if element.visible for faute in fautes(element)]
    p.verifier(not trouvees, f"{ecran}: all that is shown can be heard" + "".join("\n    " + une for une in trouvees))


def chez_l_enseignant(p):
    p.menu("Enseignant")
    p.attendre("txtCodeEnseignant")
    ecouter(p, "the teacher's code")
    p.clic("cmdCode")
    p.attendre_fenetre("frmEnseignant")
    ecouter(p, "the editor")
    p.touche("ctrl+f")
    p.attendre_fenetre("frmRechercher")
    ecouter(p, "the find window")
    p.clic("cmdFermer")
    p.attendre_fenetre("frmEnseignant")
    p.menu("Gestion du fichier \"Elèves\"")
    p.attendre_fenetre("frmGestionEleves")
    p.clic("cmdAjouter")
    p.attendre("txtNom")
    ecouter(p, "pupil management")
    p.clic("cmdAnnuler")
    p.clic("cmdQuitter")
    p.attendre_fenetre("frmEnseignant")
    p.menu("Accueil")
    p.attendre_fenetre("frmTirelune")


def au_choix_des_exercices(p):
    p.menu("Elève")
    p.attendre("cmbNoms")
    ecouter(p, "sign-in")
    p.clic("cmdOk")
    p.attendre_disparition("frameElève")
    p.clic("cmdCharger")
    p.fichier("Ouvrir un fichier texte", os.path.join(p.racine, TITRE + ".rtf"))
    p.attendre_texte("lblTexte", TITRE)
    ecouter(p, "the chooser")
    p.clic("cmdCode")
    p.attendre_fenetre("frmCodeCouleur")
    ecouter(p, "the colour code")
    p.clic("cmdQuitter")
    p.attendre_fenetre("frmExercices")
    p.clic("imgCourbes(0)")
    p.attendre_fenetre("frmProgression")
    ecouter(p, "the curves")
    p.clic("cmdQuitter")


def entendre_le_verdict(p):
    """Nothing is ticked, so the answer is wrong."""
    with pilote.Annonces() as annonces:
        p.attendre("cmdVérifier").agir("Press")
        p.jusqu_a(annonces.entendues, "something is read out")
        verdict = p.texte("lblOuiNon")
        p.verifier_egal(annonces.dites, [f"0 sur 1. {verdict}"], "the verdict and the points are read out at once")


def un_exercice(p, rang):
    """Opened by an assistive tool; one that isn't there yet says so in a box."""
    p.attendre_fenetre("frmExercices")
    titre = p.attendre(f"lblExo({rang})")
    nom = titre.nom
    titre.agir("Press")
    ouverte = p.jusqu_a(lambda: p.fenetre() if p.fenetre().identifiant != "frmExercices" else None, f"{nom} is open")
    if ouverte.identifiant.startswith("frm"):
        ecouter(p, nom)
        if rang == QUESTIONNAIRE_2:
            entendre_le_verdict(p)
        p.touche("alt+F4")
    else:
        p.touche("Return")


def seance(p):
    p.attendre_menu("Elève")
    ecouter(p, "the first screen")
    chez_l_enseignant(p)
    au_choix_des_exercices(p)
    for rang in range(EXERCICES):
        un_exercice(p, rang)
    p.attendre_fenetre("frmExercices")
    p.clic("cmdQuitter")
    p.menu("Quitter")
    p.verifier_egal(p.attendre_fin(), 0, "the program ends well")


def preparer(dossier):
    """A pupil who has read the text, so that every exercise opens; a code that is empty."""
    lu = ["*", TITRE, "100", "8"] + [""] * 27
    for nom, valeurs in (("Léa.bil", lu), ("CodeEnseignant.txt", [""])):
        with open(os.path.join(dossier, nom), "wb") as fichier:
            fichier.write("".join(f'"{valeur}"\r\n' for valeur in valeurs).encode("cp1252"))


if __name__ == "__main__":
    sys.exit(pilote.lancer("ecoute", seance, preparer=preparer))
