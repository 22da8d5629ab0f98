#!/usr/bin/python3
"""The pupil's whole road: a name, a text, Questionnaire (1), and the line in the results file."""

import os
import sys

import pilote

TITRE = "La course des escargots"


def repondre(p, numero, question):
    """Tick the right choices, alternately by the box and by the words, and check the answer."""
    p.attendre_texte("lblNuméro", str(numero))
    p.attendre_texte("txtQuestion", question[0])
    for choix, juste in enumerate(question[2::2]):
        if juste == "1":
            p.clic(f"chkRéponse({choix})" if numero % 2 else f"txtChoix({choix})")
            p.jusqu_a(lambda choix=choix: p.coche(f"chkRéponse({choix})"), f"choice {choix} is ticked")
    p.clic("cmdVérifier")
    p.attendre_texte("lblOuiNon", "Bonne Réponse")


def seance(p):
    p.attendre_menu("Elève")
    p.capture("accueil")

    p.menu("Elève")
    p.choisir("cmbNoms", "Léa")
    p.capture("choix-du-nom")
    p.clic("cmdOk")
    p.attendre_disparition("frameElève")

    p.clic("lblExo(0)")
    p.boite("Vous devez d'abord ouvrir un fichier texte !")
    p.clic("cmdCharger")
    p.fichier("Ouvrir un fichier texte", os.path.join(p.racine, TITRE + ".rtf"))
    p.attendre_texte("lblTexte", TITRE)
    p.capture("texte-charge")
    p.clic("lblExo(2)")
    p.boite("Tu dois faire l'exercice - QUESTIONNAIRE 1 - avant tous les autres.")

    p.clic("lblExo(0)")
    p.attendre("cmdCommencer")
    p.capture("consigne")
    p.clic("cmdCommencer")
    p.attendre("rtfTexte")
    p.capture("lecture")
    p.attendre_temps(1.2)
    p.clic("cmdOk")
    p.attendre("frameQuestions")
    p.verifier(p.chercher("rtfTexte") is None, "the text is out of sight during the questions")

    champs = p.lire_champs(TITRE + ".qst")
    questions = [champs[i:i + 11] for i in range(0, len(champs), 11)]
    for numero, question in enumerate(questions, 1):
        repondre(p, numero, question)
        if numero == 1:
            p.capture("premiere-reponse")
        if numero < len(questions):
            p.clic("cmdVérifier")
    p.verifier_egal(p.texte("lblPoints(0)").strip(), str(len(questions)), "all answers are right")
    p.capture("derniere-reponse")
    p.clic("cmdVérifier")

    p.attendre("lblExo(0)")
    vitesse = p.texte("lblVitesse").strip()
    p.verifier_egal(p.texte("lblMoyenne(0)").strip(), "10", "the chooser shows the mean")
    p.capture("resultats")
    p.clic("cmdQuitter")
    p.attendre_menu("Elève")
    p.capture("retour-a-l-accueil")
    p.menu("Quitter")
    p.verifier_egal(p.attendre_fin(), 0, "the program ends well")

    bilan = p.lire_champs("Léa.bil")
    p.verifier_egal(len(bilan), 31, "one record of thirty fields")
    p.verifier_egal(bilan[:2], ["*", TITRE], "the record is the text's")
    p.verifier(bilan[2].isdigit() and int(bilan[2]) > 0, f"the speed is positive: {bilan[2]}")
    p.verifier_egal(bilan[2], vitesse, "the speed is the one that was shown")
    p.verifier_egal(bilan[3], "10", "the score is ten")
    p.verifier_egal(bilan[4:], [""] * 27, "nothing else is recorded")
    p.verifier_egal(os.path.getsize(os.path.join(p.racine, "Amélie.bil")), 0, "another pupil's file is untouched")


def un_autre_eleve(dossier):
    with open(os.path.join(dossier, "Amélie.bil"), "wb"):
        pass


if __name__ == "__main__":
    sys.exit(pilote.lancer("eleve", seance, preparer=un_autre_eleve))
