#!/usr/bin/python3
"""A teacher writes a text, marks its words and saves it; a pupil reads it and fills its gaps."""

import os
import sys

import pilote

CODE = "Clé123"
TITRE = "Le phare de l'île"
TEXTE = [
    "Chaque été, Maëlle passe ses vacances dans un vieux phare, au bord de la mer. Son grand-père en est le gardien. "
    "Du balcon, elle aperçoit les bateaux de pêche qui rentrent au port.",
    "Un soir, le brouillard cacha les rochers. « Où est passée la lanterne ? » demanda l'enfant. Vite, ils allumèrent "
    "un grand feu sur la plage. Les pêcheurs comprirent le signal et trouvèrent leur chemin.",
]
SAISI = "\n".join([TITRE, *TEXTE])
# Saving has put the punctuation in one form and a tab at the head of each paragraph but the first.
CONTENU = "\n\t".join([TITRE, *TEXTE]).replace("« ", "«").replace(" »", "»") + " "
MOTS = ["gardien", "bateaux", "brouillard", "rochers", "lanterne", "pêcheurs"]
DERNIER_MOT = "signal"  # marked later than the others, to leave something unsaved


def definir_le_code(p):
    p.menu("Enseignant")
    p.attendre("txtCodeEnseignant")
    p.taper(CODE)
    p.attendre_texte("txtCodeEnseignant", "*" * len(CODE))
    p.capture("code")
    p.touche("Return")
    p.attendre("txtVérificationCode")
    p.taper(CODE)
    p.attendre_texte("txtVérificationCode", "*" * len(CODE))
    p.capture("code-a-nouveau")
    p.touche("Return")
    p.attendre_fenetre("frmEnseignant")
    p.verifier_egal(p.lire_champs("CodeEnseignant.txt"), [CODE], "the code is kept")


def ecrire_le_texte(p):
    p.clic("rtfTexte")
    for paragraphe in SAISI.split("\n"):
        if paragraphe != TITRE:
            p.touche("Return")
        p.taper_a_la_francaise(paragraphe)
    p.attendre_texte("rtfTexte", SAISI)
    p.capture("texte-tape")


def marquer(p, mot):
    debut = p.texte("rtfTexte").index(mot)
    p.clic_caractere("rtfTexte", debut + len(mot) // 2)
    p.jusqu_a(lambda: debut < p.selection("rtfTexte")[0] < debut + len(mot), f"the caret is in {mot!r}")
    p.clic("btnVocabulaire")


def mettre_en_forme(p):
    p.clic_caractere("rtfTexte", len(TITRE) // 2)
    p.touche("Home", "shift+End")
    p.attendre_selection("rtfTexte", 0, len(TITRE))
    p.touche("ctrl+b")
    p.jusqu_a(lambda: p.coche("btnGras"), "the title is bold")
    p.menu("Format", "Aligné au Centre")
    p.jusqu_a(lambda: p.coche("btnCentrer"), "the title is centred")
    for mot in MOTS:
        marquer(p, mot)
    p.capture("mots-barres")


def enregistrer(p, chemin):
    p.touche("ctrl+s")
    p.attendre_fenetre("Enregistrer sous")
    p.verifier(any(e.role == "text" and e.texte == TITRE + ".rtf" for e in p.fenetre().descendants()),
               "the dialog proposes the opening words as a name")
    p.capture("enregistrer-sous")
    p.fichier("Enregistrer sous", chemin)
    p.attendre_titre(chemin)
    p.verifier_egal(pilote.mots_barres(chemin), MOTS, "the saved text holds the marks")


def rechercher(p, mot):
    p.touche("ctrl+f")
    p.attendre_fenetre("frmRechercher")
    p.remplir("txtRechercher", mot.upper())  # capitals or not is all one
    p.clic("cmdSuivant")
    debut = CONTENU.index(mot)
    p.attendre_selection("rtfTexte", debut, debut + len(mot))
    p.capture("mot-trouve")
    p.clic("cmdFermer")
    p.attendre_disparition("txtRechercher")


def quitter_l_editeur(p, chemin):
    marquer(p, DERNIER_MOT)
    p.menu("Accueil")
    p.attendre_boite("Les modifications n'ont pas été enregistrées.")
    p.capture("modifications")
    p.boite("Les modifications n'ont pas été enregistrées.", "Oui")
    p.attendre_menu("Elève")
    p.verifier_egal(pilote.mots_barres(chemin), [*MOTS, DERNIER_MOT], "what was left unsaved is saved on the way out")


def un_mauvais_code(p):
    p.menu("Enseignant")
    p.attendre("txtCodeEnseignant")
    p.taper(CODE.lower())
    p.touche("Return")
    p.attendre_disparition("txtCodeEnseignant")
    p.verifier(p.fenetre().identifiant == "frmTirelune" and len(p.fenetres()) == 1, "a wrong code opens nothing")


def mesurer_la_vitesse(p, chemin):
    p.menu("Elève")
    p.choisir("cmbNoms", "Léa")
    p.clic("cmdOk")
    p.attendre_disparition("frameElève")
    p.clic("cmdCharger")
    p.fichier("Ouvrir un fichier texte", chemin)
    p.attendre_texte("lblTexte", TITRE)
    p.clic("lblExo(0)")
    p.clic("cmdCommencer")
    p.attendre("rtfTexte")
    p.verifier_egal(p.texte("rtfTexte"), CONTENU, "the pupil reads what the teacher has written")
    p.capture("lecture")
    p.attendre_temps(1.2)
    p.clic("cmdOk")
    p.attendre_boite("Je ne trouve pas de questionnaire associé au texte !")
    p.capture("pas-de-questionnaire")
    p.boite("Je ne trouve pas de questionnaire associé au texte !")
    p.attendre("lblExo(0)")
    bilan = p.lire_champs("Léa.bil")
    p.verifier_egal(bilan[1:], [TITRE, p.texte("lblVitesse").strip(), *[""] * 28], "only the speed is recorded")


def remplir_les_trous(p):
    mots = [*MOTS, DERNIER_MOT]
    p.clic("lblExo(4)")
    p.attendre("rtfTrous")
    p.capture("trous")
    troue = CONTENU
    for mot in mots:
        troue = troue.replace(mot, "_" * len(mot))
    p.verifier_egal(p.texte("rtfTrous"), troue, "each marked word gave way to a gap of its length")
    for rang, mot in enumerate(mots, 1):
        debut = CONTENU.index(mot)
        p.clic_caractere("rtfTrous", debut + len(mot) // 2)
        p.attendre_selection("rtfTrous", debut, debut + len(mot))
        if p.valeur("cmbTrous") != mot:
            p.choisir("cmbTrous", mot)
        if rang == 2:
            p.capture("trou-choisi")
        p.clic("cmdOk")
        p.attendre_texte("lblPoints(0)", str(rang))
    p.verifier_egal(p.texte("rtfTrous"), CONTENU, "the text is whole again")
    p.verifier_egal(p.texte("lblPoints(1)").strip(), str(len(mots)), "no try was wrong")
    p.attendre("frameFin")
    p.capture("trous-remplis")
    p.clic("cmdQuitter")
    p.attendre("lblExo(4)")
    p.verifier_egal(p.texte("lblMoyenne(4)").strip(), "10", "the chooser shows the mean")
    p.capture("note")
    p.verifier_egal(p.lire_champs("Léa.bil")[3 + 4], "10", "the score is ten")


def seance(p):
    chemin = os.path.join(p.racine, TITRE + ".rtf")
    definir_le_code(p)
    ecrire_le_texte(p)
    mettre_en_forme(p)
    enregistrer(p, chemin)
    rechercher(p, "plage")
    quitter_l_editeur(p, chemin)
    un_mauvais_code(p)
    mesurer_la_vitesse(p, chemin)
    remplir_les_trous(p)
    p.clic("cmdQuitter")
    p.menu("Quitter")
    p.verifier_egal(p.attendre_fin(), 0, "the program ends well")


if __name__ == "__main__":
    sys.exit(pilote.lancer("enseignant", seance))
