#!/usr/bin/python3
"""A pupil without a mouse: exercises reached, played to their end and left by keyboard alone."""

import os
import sys
import unicodedata

import pilote

TITRE = "La course des escargots"
MASQUE = "\u25ae"
QUESTIONNAIRE, TEXTE_MASQUE, SERIE, MOTS_EN_DESORDRE = 0, 2, 12, 17


def commencer(p):
    p.attendre_menu("Elève")
    p.touche("alt+l")
    p.attendre("cmbNoms")
    p.aller("cmbNoms")
    p.touche("Return")
    p.attendre_disparition("frameElève")
    p.presser("cmdCharger")
    p.fichier("Ouvrir un fichier texte", os.path.join(p.racine, TITRE + ".rtf"))
    p.attendre_texte("lblTexte", TITRE)


def ouvrir(p, rang):
    p.attendre_fenetre("frmExercices")
    p.presser(f"lblExo({rang})")
    p.jusqu_a(lambda: p.fenetre().identifiant not in ("", "frmExercices"), "the exercise is open")


def finir(p, rang, quoi):
    p.attendre_fenetre("frmExercices")
    p.verifier(p.jusqu_a(lambda: p.texte(f"lblMoyenne({rang})").strip(), "a score shows"), f"{quoi}: it ends in a score")


def jouer_au_questionnaire(p):
    """The text that was read."""
    champs = p.lire_champs(TITRE + ".qst")
    questions = [champs[i:i + 11] for i in range(0, len(champs), 11)]
    ouvrir(p, QUESTIONNAIRE)
    p.presser("cmdCommencer")
    texte = p.texte("rtfTexte")
    p.attendre_temps(1.2)
    p.presser("cmdOk")
    for numero, question in enumerate(questions, 1):
        p.attendre_texte("lblNuméro", str(numero))
        for choix, juste in enumerate(question[2::2]):
            if juste == "1":
                p.presser(f"chkRéponse({choix})")
                p.jusqu_a(lambda choix=choix: p.coche(f"chkRéponse({choix})"), f"choice {choix} is ticked")
        p.presser("cmdVérifier")
        p.attendre_texte("lblOuiNon", "Bonne Réponse")
        p.presser("cmdVérifier")
    finir(p, QUESTIONNAIRE, "Questionnaire")
    p.verifier_egal(p.texte(f"lblMoyenne({QUESTIONNAIRE})").strip(), "10", "Questionnaire: all answers are right")
    return texte


def decouvrir_le_texte(p, texte):
    """Arrows lead to a character, Enter chooses it, a letter is tried on it."""
    ouvrir(p, TEXTE_MASQUE)
    p.aller("rtfMasqué")
    ici = 0
    while not p.chercher("frameFin"):
        masque = p.texte("rtfMasqué")
        la = masque.index(MASQUE)
        if la > ici:
            p.touche(*["Right"] * (la - ici), pas=5)
        ici = la
        points = p.texte("lblPoints(1)")
        p.touche("Return")
        p.attendre_selection("rtfMasqué", la, la + 1)
        p.taper(unicodedata.normalize("NFD", texte[la])[0].lower())
        p.jusqu_a(lambda points=points: p.texte("lblPoints(1)") != points, "the letter is judged")
    p.presser("cmdQuitter")
    finir(p, TEXTE_MASQUE, "Texte masqué")


def se_rappeler_la_serie(p):
    ouvrir(p, SERIE)
    while p.fenetre().identifiant != "frmExercices":
        bouton = p.jusqu_a(lambda: next((nom for nom in ("cmdContinuer", "cmdVoir", "lblChoix(0)") if p.chercher(nom)), None),
                           "there is something to press")
        p.presser(bouton)
    finir(p, SERIE, "Mémoriser la série")


def ranger_les_mots(p):
    ouvrir(p, MOTS_EN_DESORDRE)
    p.presser("lblMot(1)")
    p.jusqu_a(lambda: p.texte("txtPhrase").strip(), "the word stands in the sentence")
    while True:
        suivant = p.jusqu_a(lambda: next((nom for nom in ("cmdSuivant", "cmdTerminé") if p.chercher(nom)
                                          and p.chercher(nom).etat("SENSITIVE")), None), "a button is there")
        fin = suivant == "cmdSuivant" and p.texte("cmdSuivant") == "Quitter"
        p.presser(suivant)
        if fin:
            break
    finir(p, MOTS_EN_DESORDRE, "Mots en désordre")


def seance(p):
    commencer(p)
    decouvrir_le_texte(p, jouer_au_questionnaire(p))
    se_rappeler_la_serie(p)
    ranger_les_mots(p)
    p.touche("alt+F4")
    p.attendre_menu("Quitter")
    p.touche("alt+q")
    p.verifier_egal(p.attendre_fin(), 0, "the program ends well")


if __name__ == "__main__":
    sys.exit(pilote.lancer("clavier", seance))
