#!/usr/bin/python3
"""A teacher writes the questionnaire and the lexicon of a text, without the mouse; the files are theirs to the byte."""

import os
import sys

import pilote

CODE = "Clé123"
TITRE = "La course des escargots"
PROPOSES = ["C'est vrai.", "C'est faux.", "Le texte ne le dit pas."]
# Each question with its choices and the right ones, the first being 0.
QUESTIONS = [
    ("Les escargots font la course.", [*PROPOSES, *PROPOSES[2:] * 2], [0]),
    ("De quelle couleur est le drapeau ?", ["Rouge.", "Vert.", "Bleu."], [1]),
    ("Où finit la course ?", ["Au bout du jardin.", "Sous la salade.", "À l'école."], [0, 1]),
]
FAMILLES = [
    ("la mer", [("les bateaux", ["la voile", "le mât", "la coque", "l'ancre"]),
                ("les poissons", ["le thon", "la sole", "la raie", "le hareng"])]),
    ("le jardin", [("les légumes", ["la salade", "le radis", "le poireau", "la carotte"]),
                   ("les outils", ["la bêche", "le râteau", "l'arrosoir", "la binette"])]),
    ("la maison", [("la cuisine", ["le four", "l'évier", "la poêle", "la casserole"]),
                   ("la chambre", ["le lit", "l'oreiller", "le drap", "la couette"])]),
    ("le corps", [("la tête", ["le nez", "la bouche", "l'œil", "l'oreille"]),
                  ("la main", ["le pouce", "l'index", "l'ongle", "la paume"])]),
    ("le temps", [(None, ["la pluie", "le vent", "la neige", "l'orage"])]),
    ("l'école", [(None, ["le cahier", "la règle", "le tableau", "la gomme"])]),
    ("la forêt", [(None, ["le chêne", "le hêtre", "la mousse", "le sentier"])]),
    ("la ferme", [(None, ["la vache", "l'étable", "le foin", "le tracteur"])]),
]
SYNONYMES = [("content", "joyeux"), ("beau", "joli"), ("vite", "rapidement"), ("peur", "crainte"), ("dire", "parler"),
             ("maison", "demeure"), ("finir", "terminer"), ("gros", "énorme"), ("fâché", "irrité"), ("calme", "paisible")]
CONTRAIRES = [("grand", "petit"), ("chaud", "froid"), ("jour", "nuit"), ("vite", "lentement"), ("plein", "vide"),
              ("haut", "bas"), ("premier", "dernier"), ("ouvrir", "fermer"), ("monter", "descendre"), ("sec", "mouillé")]
GENRES = [("gardien", "gardienne"), ("chat", "chatte"), ("roi", "reine"), ("lion", "lionne"), ("acteur", "actrice"),
          ("cheval", "jument"), ("ouvrier", "ouvrière"), ("prince", "princesse"), ("voisin", "voisine"),
          ("boulanger", "boulangère")]
MOTS = [
    ("escargot", "Petit animal qui porte sa coquille sur le dos.", "L'escargot laisse une trace brillante."),
    ("coquille", "Enveloppe dure qui protège un animal.", "Il rentre dans sa coquille."),
    ("piste", "Chemin tracé pour une course.", "Les coureurs sont sur la piste."),
    ("départ", "Moment où l'on part.", "Le départ est donné."),
    ("arrivée", "Endroit où finit une course.", ""),
    ("fanion", "Petit drapeau.", "Elle agite un fanion."),
    ("vainqueur", "Celui qui gagne.", "Le vainqueur lève les bras."),
    ("bave", "Liquide qui coule de la bouche.", ""),
    ("antenne", "Longue corne fine sur la tête d'un insecte.", "Le papillon a deux antennes."),
    ("rosée", "Gouttes d'eau posées sur l'herbe le matin.", "La rosée brille."),
    ("potager", "Jardin où poussent des légumes.", ""),
    ("lenteur", "Façon d'aller sans se presser.", "Sa lenteur nous fait rire."),
]


def champs(valeurs):
    return "".join(f'"{valeur}"\r\n' for valeur in valeurs).encode("cp1252")


def lire(p, nom):
    with open(os.path.join(p.racine, nom), "rb") as fichier:
        return fichier.read()


def preparer(dossier):
    """A text with no questionnaire and no lexicon; its teacher has a code."""
    with open(os.path.join(dossier, "CodeEnseignant.txt"), "wb") as fichier:
        fichier.write(champs([CODE]))
    for nom in os.listdir(dossier):
        if nom.endswith((".qst", ".dic", ".dat")) and not nom.endswith("Récents.dat"):
            os.remove(os.path.join(dossier, nom))


def ouvrir_le_texte(p):
    p.menu("Enseignant")
    p.attendre("txtCodeEnseignant")
    p.taper(CODE)
    p.touche("Return")
    p.attendre("tlbBoutons")
    p.touche("ctrl+o")
    chemin = os.path.join(p.racine, TITRE + ".rtf")
    p.fichier("Ouvrir un fichier texte", chemin)
    p.attendre_titre(chemin)


def ecrire_le_questionnaire(p):
    p.clic("btnQuestion")
    p.attendre("txtQuestion")
    for rang, (question, choix, justes) in enumerate(QUESTIONS):
        p.attendre_texte("lblNuméro", str(rang + 1))
        p.aller("txtQuestion")
        p.taper(question)
        p.attendre_texte("txtQuestion", question)
        for i, libelle in enumerate(choix):
            if p.texte(f"txtChoix({i})") != libelle:
                p.aller(f"txtChoix({i})")
                p.touche("ctrl+a")
                p.taper(libelle)
        for i in justes:
            p.aller(f"chkRéponse({i})")
            p.touche("space")
            p.jusqu_a(lambda i=i: p.coche(f"chkRéponse({i})"), f"choice {i} is ticked")
        p.capture(f"question-{rang + 1}")
        if rang + 1 < len(QUESTIONS):
            p.touche("alt+s")
    p.touche("alt+q")
    p.attendre_disparition("txtQuestion")
    attendus = []
    for question, choix, justes in QUESTIONS:
        attendus.append(question)
        for i in range(5):
            attendus += [choix[i] if i < len(choix) else "", str(int(i in justes))]
    p.verifier_egal(lire(p, TITRE + ".qst"), champs(attendus), "the questionnaire is what was typed, to the byte")


def entrer(p, rang, mot):
    """A word in the field that has the keyboard."""
    p.taper(mot)
    p.touche("Return")
    p.attendre_texte(f"txtMot({rang})", mot)


def ecrire_les_familles(p):
    p.aller("txtMot(0)")
    for theme, sous_themes in FAMILLES:
        entrer(p, 0, theme)
        for sous_theme, mots in sous_themes:
            p.touche("Tab")
            if sous_theme:
                entrer(p, 1, sous_theme)
            p.touche("Tab")
            for mot in mots:
                entrer(p, 2, mot)
            p.touche("shift+Tab", "shift+Tab")


def ecrire_les_paires(p, rang, paires):
    p.aller(f"txtMot({rang})")
    for premier, second in paires:
        entrer(p, rang, premier)
        p.touche("Tab")
        entrer(p, rang + 1, second)
        p.touche("shift+Tab")


def ecrire_le_dictionnaire(p):
    for mot, definition, exemple in MOTS:
        p.touche("ctrl+Return")
        entrer(p, 9, mot)
        p.touche("Tab", "Tab")
        p.taper(definition)
        p.attendre_texte("txtDéfinition", definition)
        p.touche("Tab")
        p.taper(exemple)
        p.attendre_texte("txtExemple", exemple)


def ecrire_le_lexique(p):
    p.clic("btnLexique")
    p.attendre("txtMot(0)")
    ecrire_les_familles(p)
    ecrire_les_paires(p, 3, SYNONYMES)
    ecrire_les_paires(p, 5, CONTRAIRES)
    ecrire_les_paires(p, 7, GENRES)
    p.capture("familles-et-paires")
    ecrire_le_dictionnaire(p)
    p.capture("dictionnaire")
    p.touche("alt+q")  # the last example has not been validated: it is saved all the same
    p.attendre_disparition("txtMot(0)")


def verifier_les_fichiers(p):
    familles = [["*", theme, sous_theme or "", *mots]
                for theme, sous_themes in FAMILLES for sous_theme, mots in sous_themes]
    p.verifier_egal(len(familles), 12, "there are twelve families")
    dictionnaire = [["*", mot, definition, exemple] for mot, definition, exemple in MOTS]
    for nom, fiches in (("Familles.dat", familles),
                        ("Synonymes.dat", [["*", *paire] for paire in SYNONYMES]),
                        ("Contraires.dat", [["*", *paire] for paire in CONTRAIRES]),
                        ("Genre.dat", [["*", *paire] for paire in GENRES]),
                        (TITRE + ".dic", dictionnaire), ("DicPrinc.dat", dictionnaire)):
        p.verifier_egal(lire(p, nom), champs(valeur for fiche in fiches for valeur in fiche),
                        f"{nom} is what was typed, to the byte")


def relire_et_corriger(p):
    """The lexicon opens as it was left; a rename, a delete and a definition reach the files."""
    p.clic("btnLexique")
    p.attendre("txtMot(0)")
    p.verifier_egal(p.texte("txtMot(3)"), min(premier for premier, _ in SYNONYMES), "the first word shows")
    p.verifier_egal(p.texte("txtMot(9)"), "antenne", "the dictionary is in its order")
    p.verifier_egal(p.texte("txtDéfinition"), "Longue corne fine sur la tête d'un insecte.", "so is its definition")
    p.aller("cmdModifier(3)")
    p.touche("space")
    p.attendre("txtModif")
    p.taper("Joli")
    p.touche("Return")
    p.attendre_disparition("txtModif")
    p.aller("txtMot(5)")
    entrer(p, 5, "chaud")
    p.aller("cmdSupprimer(5)")
    p.touche("space")
    p.boite("Attention : vous allez supprimer cette entrée et tous ses dépendants.", "Oui")
    p.touche("alt+e")
    reste = [paire for paire in CONTRAIRES if paire[0] != "chaud"]
    attendus = champs(valeur for paire in reste for valeur in ("*", *paire))
    p.jusqu_a(lambda: lire(p, "Contraires.dat") == attendus, "the pair has gone from the file")
    renommes = [("Joli" if premier == "beau" else premier, second) for premier, second in SYNONYMES]
    p.verifier_egal(lire(p, "Synonymes.dat"), champs(valeur for paire in renommes for valeur in ("*", *paire)),
                    "the renamed word keeps its capital and its synonym")
    p.touche("alt+F4")
    p.attendre_disparition("txtMot(0)")


def seance(p):
    ouvrir_le_texte(p)
    ecrire_le_questionnaire(p)
    ecrire_le_lexique(p)
    verifier_les_fichiers(p)
    relire_et_corriger(p)
    p.menu("Accueil")
    p.attendre_menu("Quitter")
    p.menu("Quitter")
    p.verifier_egal(p.attendre_fin(), 0, "the program ends well")


if __name__ == "__main__":
    sys.exit(pilote.lancer("lexique", seance, preparer=preparer))
