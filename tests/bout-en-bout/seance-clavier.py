#!/usr/bin/python3
"""A pupil without a mouse: exercises reached, played to their end and left by keyboard alone."""

import os
import sys
import unicodedata

import pilote

TITRE = "La course des escargots"
MASQUE = "\u25ae"
QUESTIONNAIRE1, QUESTIONNAIRE2, TEXTE_MASQUE, PHOTOGRAPHIER, SERIE, POURSUITE, MOTS_EN_DESORDRE, PENDU = \
    0, 1, 2, 11, 12, 14, 17, 21
COURT = "Le phare"
PHRASES = "Le vieux phare se dresse au bout de la jetée. Chaque soir Maël monte les marches avec son oncle et regarde " \
          "la mer. Un bateau rouge rentre au port avec des caisses de poissons. Les mouettes le suivent en criant " \
          "très fort. Puis la grande lampe s'allume et les vagues brillent dans la nuit."


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


def repondre(p):
    """All questions, each rightly."""
    champs = p.lire_champs(TITRE + ".qst")
    questions = [champs[i:i + 11] for i in range(0, len(champs), 11)]
    for numero, question in enumerate(questions, 1):
        p.attendre_texte("lblNuméro", str(numero))
        for choix, juste in enumerate(question[2::2]):
            if juste == "1":
                p.presser(f"chkRéponse({choix})")
                p.jusqu_a(lambda choix=choix: p.coche(f"chkRéponse({choix})"), f"choice {choix} is ticked")
        p.presser("cmdVérifier")
        p.attendre_texte("lblOuiNon", "Bonne Réponse")
        p.presser("cmdVérifier")


def finir_sur_dix(p, rang, quoi):
    finir(p, rang, quoi)
    p.verifier_egal(p.texte(f"lblMoyenne({rang})").strip(), "10", f"{quoi}: all answers are right")


def jouer_au_questionnaire(p):
    """The text that was read."""
    p.verifier("verrouillé" in p.attendre(f"lblExo({PENDU})").nom, "what the questionnaire comes before is locked")
    ouvrir(p, QUESTIONNAIRE1)
    p.presser("cmdCommencer")
    texte = p.texte("rtfTexte")
    p.attendre_temps(1.2)
    p.presser("cmdOk")
    repondre(p)
    finir_sur_dix(p, QUESTIONNAIRE1, "Questionnaire (1)")
    p.verifier("verrouillé" not in p.attendre(f"lblExo({PENDU})").nom, "the questionnaire unlocks the others")
    return texte


def jouer_texte_en_vue(p):
    ouvrir(p, QUESTIONNAIRE2)
    repondre(p)
    finir_sur_dix(p, QUESTIONNAIRE2, "Questionnaire (2)")


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


def photographier(p):
    ouvrir(p, PHOTOGRAPHIER)
    reponses = 0
    while not p.chercher("cmdQuitter"):
        p.presser("cmdAfficher")
        p.jusqu_a(lambda: not p.attendre("cmdAfficher").etat("SENSITIVE"), "the word is shown")
        p.presser("lblRéponse(0)")
        reponses += 1
        p.attendre_texte("lblPoints(1)", str(reponses))
    p.presser("cmdQuitter")
    finir(p, PHOTOGRAPHIER, "Photographier")


def trouver_les_mots(p):
    """Letters are typed, the most frequent ones first, until the word is found or lost."""
    ouvrir(p, PENDU)
    while p.fenetre().identifiant != "frmExercices":
        for lettre in "eaisnrtoludcmpvghfbqjxyzkw":
            avant = p.image()
            p.taper(lettre)
            p.jusqu_a(lambda avant=avant: p.image() != avant, f"{lettre!r} is judged")
            if p.chercher("cmdSuivant"):
                break
        p.presser("cmdSuivant")
        p.attendre_disparition("cmdSuivant")
    finir(p, PENDU, "Le pendu")


def poursuivre(p):
    """Right answers make the text come faster."""
    p.presser("cmdCharger")
    p.fichier("Ouvrir un fichier texte", os.path.join(p.racine, COURT + ".rtf"))
    p.attendre_texte("lblTexte", COURT)
    ouvrir(p, POURSUITE)
    p.presser("cmdCommencer")
    for _ in range(5):
        p.attendre("rtfPoursuite")
        dernier = p.suivre("rtfPoursuite", PHRASES, "frameMot")
        p.presser(next(f"lblMot({i})" for i in range(10) if p.texte(f"lblMot({i})") == dernier))
        p.presser("cmdContinuer")
    finir_sur_dix(p, POURSUITE, "Poursuite")


def garnir(dossier):
    """Another text, short, that Léa has read."""
    pilote.ecrire_rtf(os.path.join(dossier, COURT + ".rtf"), PHRASES)
    with open(os.path.join(dossier, "Léa.bil"), "a", encoding="cp1252", newline="") as fichier:
        fichier.writelines(f'"{champ}"\r\n' for champ in ["*", COURT, "90", *[""] * 28])


def seance(p):
    commencer(p)
    texte = jouer_au_questionnaire(p)
    jouer_texte_en_vue(p)
    decouvrir_le_texte(p, texte)
    photographier(p)
    se_rappeler_la_serie(p)
    ranger_les_mots(p)
    trouver_les_mots(p)
    poursuivre(p)
    p.touche("alt+F4")
    p.attendre_menu("Quitter")
    p.touche("alt+q")
    p.verifier_egal(p.attendre_fin(), 0, "the program ends well")


if __name__ == "__main__":
    sys.exit(pilote.lancer("clavier", seance, preparer=garnir))
