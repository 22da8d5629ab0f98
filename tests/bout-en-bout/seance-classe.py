#!/usr/bin/python3
"""A teacher looks after the list of pupils; one of them plays two exercises and looks at the curves."""

import os
import string
import sys
import unicodedata

import pilote

TITRE = "La course des escargots"
CODE_ENSEIGNANT = "école"
CODE_ELEVES = "140789"
MASQUE = "▮"
PENDU, MOT_COUPE, PHOTOGRAPHIER = 21, 22, 11  # indexes of exercises
JAUNE, ROUGE, CYAN, VERT = (255, 255, 0), (255, 0, 0), (0, 255, 255), (0, 255, 0)
NOIR, OLIVE = (0, 0, 0), (128, 128, 0)
POINT = 30  # pixels that a dot has at least


def fiche(titre, vitesse, notes):
    """The record of a text in a results file."""
    return ["*", titre, vitesse, *(notes.get(exercice, "") for exercice in range(27)), ""]


# One score comes from a machine that writes a comma.
DEJA_FAIT = fiche("Le hérisson du jardin", "140", {0: "8", PENDU: "6", MOT_COUPE: "2,5"})
DEJA_LU = fiche(TITRE, "150", {0: "10", MOT_COUPE: "7"})


def une_classe(dossier):
    def ecrire(nom, champs):
        with open(os.path.join(dossier, nom), "w", encoding="cp1252", newline="") as fichier:
            fichier.writelines(f'"{champ}"\r\n' for champ in champs)
    ecrire("CodeEnseignant.txt", [CODE_ENSEIGNANT])
    os.remove(os.path.join(dossier, "Léa.bil"))
    ecrire("Amélie.bil", [*DEJA_FAIT, *DEJA_LU])
    ecrire("Tom.bil", [])


def noms(p, liste):
    """The values of a drop-down list, closed again."""
    premier = p.valeur(liste)
    p.clic(liste)
    p.attendre_valeur(premier)
    trouves = [e.nom for e in p.attendre(liste, partout=True).descendants() if e.role == "list item"]
    p.touche("Escape")
    p.jusqu_a(lambda: p.chercher_valeur(premier) is None, f"the list {liste!r} is closed")
    return trouves


def gerer_les_eleves(p):
    p.menu("Enseignant")
    p.attendre("txtCodeEnseignant")
    p.taper(CODE_ENSEIGNANT)
    p.clic("cmdCode")
    p.attendre_fenetre("frmEnseignant")
    p.menu('Gestion du fichier "Elèves"')
    p.attendre_fenetre("frmGestionEleves")
    p.capture("liste-des-eleves")

    p.clic("cmdAjouter")
    p.attendre("txtNom")
    p.taper_a_la_francaise("Zoé")
    p.attendre_texte("txtNom", "Zoé")
    p.capture("nouveau-nom")
    p.touche("Return")
    p.attendre_texte_liste("cmbNoms", "Zoé")
    p.verifier_egal(os.path.getsize(os.path.join(p.racine, "Zoé.bil")), 0, "the new pupil's file is empty")

    p.choisir("cmbNoms", "Tom")
    p.clic("cmdSupprimer")
    p.attendre_texte("lblCode", "Tapez votre code d'accès (6 chiffres ou lettres).")
    p.capture("code-de-suppression")
    p.taper(CODE_ELEVES)
    p.attendre_texte("lblCode", "Confirmez votre code.")
    p.capture("confirmer-le-code")
    p.taper(CODE_ELEVES)
    p.attendre_boite("Destruction irréversible. Souhaitez-vous continuer ?")
    p.verifier(os.path.exists(os.path.join(p.racine, "Tom.bil")), "nothing goes before the answer")
    p.capture("destruction")
    p.boite("Destruction irréversible. Souhaitez-vous continuer ?", "Oui")
    p.jusqu_a(lambda: not os.path.exists(os.path.join(p.racine, "Tom.bil")), "the file of Tom has gone")
    p.verifier_egal(p.lire_champs("Code.txt"), [CODE_ELEVES], "the code is kept")
    p.verifier_egal(noms(p, "cmbNoms"), ["Amélie", "Zoé"], "one pupil came, one went")
    p.capture("liste-a-jour")
    p.clic("cmdQuitter")
    p.attendre_fenetre("frmEnseignant")
    p.menu("Accueil")


def commencer(p):
    p.menu("Elève")
    p.verifier_egal(noms(p, "cmbNoms"), ["Amélie", "Zoé"], "the pupils find the same list")
    p.choisir("cmbNoms", "Amélie")
    p.clic("cmdOk")
    p.attendre_disparition("frameElève")
    p.verifier_egal(p.texte("lblMoyenne(22)").strip(), "4.75", "the means are those of both texts")
    p.clic("cmdCharger")
    p.fichier("Ouvrir un fichier texte", os.path.join(p.racine, TITRE + ".rtf"))
    p.attendre_texte("lblTexte", TITRE)
    p.verifier_egal(p.texte("lblVitesse").strip(), DEJA_LU[2], "the text's speed is known")
    p.capture("deja-des-notes")


def sans_accents(mot):
    return "".join(lettre for lettre in unicodedata.normalize("NFD", mot.lower()) if lettre.isalpha())


def choisir_une_lettre(mots, vu, essayees):
    """The letter that most of the words still possible have."""
    def possible(mot):
        return len(mot) == len(vu) and all(sans_accents(lettre) not in essayees if vue == MASQUE else lettre == vue
                                           for lettre, vue in zip(mot, vu))
    restants = [sans_accents(mot) for mot in mots if possible(mot)]
    return max((lettre for lettre in string.ascii_lowercase if lettre not in essayees),
               key=lambda lettre: sum(lettre in mot for mot in restants))


class Pendu:
    """The screen of the hanged man. He himself is no widget: there is only what can be seen of him."""

    def __init__(self, p):
        self.p = p
        p.attendre("lblMot")
        self.elements = p.elements()
        _, haut, _, hauteur = self.elements["Label1"].place
        droite = self.elements["lblMot"].place[0]
        bas = self.elements["lblLettre(0)"].place[1]
        self.zone = 0, haut + hauteur, droite, bas - haut - hauteur

    def mot(self):
        return self.elements["lblMot"].texte

    def dessin(self):
        couleurs = self.p.couleurs(self.zone)
        return couleurs[ROUGE], couleurs[NOIR], couleurs[OLIVE]

    def essayer(self, lettre, par_la_souris):
        """Give a letter, by mouse or by keyboard, and wait until the word or the drawing has changed."""
        mot, dessin = self.mot(), self.dessin()
        if par_la_souris:
            self.p.clic(self.elements[f"lblLettre({ord(lettre) - ord('a')})"])
        else:
            self.p.touche(lettre)
        self.p.jusqu_a(lambda: self.mot() != mot or self.dessin() != dessin, f"{lettre!r} is judged")

    def perdre(self, mots):
        absentes = [lettre for lettre in string.ascii_lowercase if not any(lettre in sans_accents(mot) for mot in mots)]
        for essai in range(10):
            if essai == 9:
                self.p.verifier(MASQUE in self.mot(), "nine wrong letters don't lose the word")
            self.essayer(absentes[essai % len(absentes)], essai % 2)

    def trouver(self, mots):
        essayees = set()
        while MASQUE in (vu := self.mot()):
            lettre = choisir_une_lettre(mots, vu, essayees)
            self.essayer(lettre, len(essayees) % 2)
            essayees.add(lettre)


def jouer_au_pendu(p, mots):
    """Lose the first word, play the others as well as can be; the score."""
    p.clic(f"lblExo({PENDU})")
    pendu = Pendu(p)
    p.capture("pendu")
    for rang in range(1, 6):
        p.jusqu_a(lambda: MASQUE in pendu.mot(), "a word is to be found")
        if rang == 1:
            pendu.perdre(mots)
        else:
            pendu.trouver(mots)
        p.attendre_texte("lblPoints(1)", str(rang))
        p.verifier(pendu.mot() in mots, f"word {rang} is one of the marked ones")
        p.attendre("cmdSuivant")
        p.capture(f"mot-{rang}")
        if rang == 2:
            p.touche("Return")
        elif rang < 5:
            p.clic("cmdSuivant")
    points = int(p.texte("lblPoints(0)"))
    p.verifier(points < 5, "the word lost counts as lost")
    p.clic("cmdSuivant")
    p.attendre(f"lblExo({PENDU})")
    return points / 5 * 10


def photographier(p, mots):
    """Twenty words flashed; two answers are wrong. The score."""
    p.clic(f"lblExo({PHOTOGRAPHIER})")
    p.attendre("cmdAfficher")
    p.capture("photographier")
    elements = p.elements()
    reponses = [elements[f"lblRéponse({i})"] for i in range(10)]
    for rang in range(1, 21):
        p.clic(elements["cmdAfficher"])
        # The words of the flash before stay until the button has gone out.
        p.jusqu_a(lambda: not elements["cmdAfficher"].etat("SENSITIVE") and all(reponse.visible for reponse in reponses),
                  f"the words of flash {rang} are shown")
        propositions = [reponse.texte for reponse in reponses]
        vu = propositions.index(elements["lblMot"].texte)
        if rang == 1:
            p.verifier(set(propositions) <= set(mots) and len(set(propositions)) == 10, "ten of the marked words")
            p.capture("propositions")
        juste = rang not in (3, 4)
        choisie = vu if juste else (vu + 1) % 10
        p.presser(f"lblRéponse({choisie})") if rang == 5 else p.clic(reponses[choisie])
        p.jusqu_a(lambda rang=rang: elements["lblPoints(1)"].texte.strip() == str(rang), f"answer {rang} is judged")
        if rang in (2, 3):
            p.capture("bonne-reponse" if juste else "mauvaise-reponse")
    points = int(p.texte("lblPoints(0)"))
    p.verifier_egal(points, 18, "two answers were wrong")
    p.verifier(p.chercher("cmdAfficher") is None, "twenty flashes are all")
    p.capture("vingt-mots")
    p.clic("cmdQuitter")
    p.attendre(f"lblExo({PHOTOGRAPHIER})")
    return points / 20 * 10


def regarder_les_courbes(p, groupe, nom, teintes, absentes):
    p.clic(f"imgCourbes({groupe})")
    p.attendre("lblLégende(0)")
    p.jusqu_a(lambda: all(p.couleurs("imgCourbes")[teinte] > POINT for teinte in teintes),
              f"the curves of {nom} are drawn")
    couleurs = p.couleurs("imgCourbes")
    p.verifier(not any(couleurs[teinte] for teinte in absentes), f"{nom}: what was never done has no curve")
    p.capture("courbes-" + nom)
    p.clic("cmdQuitter")
    p.attendre_disparition("lblLégende(0)")


def en_texte(note):
    """A score or a mean with no more digits than it needs."""
    return f"{note:.4f}".rstrip("0").rstrip(".")


def seance(p):
    mots = pilote.mots_barres(os.path.join(p.racine, TITRE + ".rtf"))
    gerer_les_eleves(p)
    commencer(p)
    pendu = jouer_au_pendu(p, mots)
    photo = photographier(p, mots)
    p.verifier_egal(p.texte(f"lblMoyenne({PENDU})").strip(), en_texte((pendu + 6) / 2),
                    "the mean counts both texts")
    p.verifier_egal(p.texte(f"lblMoyenne({PHOTOGRAPHIER})").strip(), "9", "the mean of one text is its score")
    p.capture("nouvelles-notes")
    regarder_les_courbes(p, 4, "orthographe", [JAUNE, ROUGE], [VERT, CYAN])
    regarder_les_courbes(p, 2, "memoire", [JAUNE], [ROUGE, CYAN])
    p.clic("cmdQuitter")
    p.menu("Quitter")
    p.verifier_egal(p.attendre_fin(), 0, "the program ends well")

    bilan = [champ.replace(",", ".") for champ in p.lire_champs("Amélie.bil")]
    recents = bilan[len(DEJA_FAIT):]
    p.verifier_egal(bilan[:len(DEJA_FAIT)], [champ.replace(",", ".") for champ in DEJA_FAIT],
                    "the results of the other text are untouched")
    p.verifier_egal(recents.pop(3 + PENDU), en_texte(pendu), "the score of Le pendu is the one that was shown")
    p.verifier_egal(recents.pop(3 + PHOTOGRAPHIER), en_texte(photo), "and so is that of Photographier")
    p.verifier_egal(recents, [champ for i, champ in enumerate(DEJA_LU) if i not in (3 + PENDU, 3 + PHOTOGRAPHIER)],
                    "nothing else has changed in the results of the text")


if __name__ == "__main__":
    sys.exit(pilote.lancer("classe", seance, preparer=une_classe))
