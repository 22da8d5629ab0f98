#!/usr/bin/python3
"""Mots inversés, Lignes and Phrases en désordre, Mot coupé, Ecrire un mot and Mot tronqué, each with a fault and to its
end: once by mouse, once by keyboard alone, and the scores in the pupil's file."""

import itertools
import os
import re
import struct
import sys

import pilote

TITRE = "Le hérisson du jardin"
TRONQUE, INVERSES, LIGNES, PHRASES, COUPES, ECRIRE = 13, 18, 19, 20, 22, 23


def texte_nettoye(chemin):
    """The text on one line, as the exercises on sentences and lines take it."""
    with open(chemin, encoding="cp1252", newline="") as fichier:
        corps = re.sub(r"^.*?}}|[\r\n]|}\s*$", "", fichier.read(), flags=re.DOTALL)
    corps = re.sub(r"\\'(..)", lambda m: bytes.fromhex(m[1]).decode("cp1252"), corps)
    corps = re.sub(r"\\[a-z]+\d* ?", lambda m: "\n" if m[0].strip() == "\\par" else "", corps)
    return " ".join(re.sub(r"[^\w\s'(),\"«».?!;:°+*/=&§\[\]-]|[œŒæÆ]", " ", corps).split())


def note(points, sur):
    """The score on ten in single precision, as the pupil's file has it."""
    simple = lambda nombre: struct.unpack("f", struct.pack("f", nombre))[0]
    return f"{simple(simple(points / sur) * 10):.7g}"


class Mains:
    """By mouse, or by keyboard alone."""

    def __init__(self, p, clavier):
        self.p = p
        self.clavier = clavier

    def appuyer(self, nom):
        self.p.presser(nom) if self.clavier else self.p.clic(nom)

    def choisir(self, boite, rang):
        """The character of that rank in a text."""
        if self.clavier:
            self.p.aller(boite)
            self.p.touche("Home", *["Right"] * rang, "space", pas=15)
        else:
            self.p.clic_caractere(boite, rang)


def points(p, bons, tous):
    p.attendre_texte("lblPoints(0)", str(bons))
    p.attendre_texte("lblPoints(1)", str(tous))


def visibles(p, tableau):
    return {nom: e for nom, e in p.elements().items() if nom.startswith(tableau + "(") and e.visible}


def inverses(p, mains, texte):
    """The first sentence at its second try, the others at their first, until there are ten or no more."""
    serre = re.sub(r" ([.?!;:])", r"\1", texte)

    def couples():
        """The exchanges that make a sentence of the text, and one that doesn't."""
        mots = p.texte("rtfPhrase").split(" ")
        bon = faux = None
        for i, j in itertools.combinations(range(len(mots)), 2):
            essai = list(mots)
            essai[i], essai[j] = essai[j], essai[i]
            if " ".join(essai) in serre:
                bon = bon or (i, j)
            elif mots[i] != mots[j]:
                faux = faux or (i, j)
        return mots, bon, faux

    def echanger(mots, couple):
        for rang in couple:
            mains.choisir("rtfPhrase", sum(len(mot) + 1 for mot in mots[:rang]))
        mains.appuyer("cmdTerminé")
        mains.appuyer("cmdOk")

    gagnes = 0
    for phrase in range(1, 11):
        mots, bon, faux = couples()
        if phrase == 1:
            echanger(mots, faux)
            p.attendre_texte("lblEssais", "1")
        echanger(mots, bon)
        gagnes += 1 if phrase == 1 else 2
        points(p, gagnes, 2 * phrase)
        p.attendre_texte("lblCoups", str(phrase))
        mains.appuyer("cmdSuivant")
        if phrase == 10:
            break
        p.jusqu_a(lambda: p.chercher("frameQuitter") or (p.chercher("rtfPhrase") and not p.chercher("cmdSuivant")),
                  "the next sentence, or the end, has come")
        if p.chercher("frameQuitter"):
            mains.appuyer("cmdAbandonner")
            break
    return note(gagnes, 2 * phrase)


def remettre(p, mains, texte, tableau, maximum, amende):
    """A wrong check, then the right order."""
    def colonne():
        return [e.texte for e in visibles(p, tableau).values()]

    def deplacer(de, vers):
        attendue = colonne()
        attendue.insert(vers, attendue.pop(de))
        mains.appuyer(f"{tableau}({de})")
        mains.appuyer(f"{tableau}({vers})")
        p.jusqu_a(lambda: colonne() == attendue, f"{attendue[vers]!r} has moved")

    def en_ordre():
        return sorted(colonne(), key=texte.index)

    if colonne() == en_ordre():
        deplacer(1, 0)
    mains.appuyer("cmdQuitter")
    points(p, maximum - amende, maximum)
    for rang, piece in enumerate(en_ordre()):
        if colonne().index(piece) != rang:
            deplacer(colonne().index(piece), rang)
    mains.appuyer("cmdQuitter")
    p.attendre_texte("cmdQuitter", "Quitter")
    points(p, maximum - amende, maximum)
    mains.appuyer("cmdQuitter")
    return note(maximum - amende, maximum)


def coupes(p, mains, mots):
    """All rows but the last."""
    rangees = len(visibles(p, "lblMotDébut"))
    for rang in range(rangees - 1):
        debut = p.texte(f"lblMotDébut({rang})")
        fin = next(nom for nom, e in visibles(p, "lblMotFin").items() if e.texte and debut + e.texte in mots)
        mains.appuyer(fin)
        mains.appuyer(f"lblMotDébut({rang})")
        p.jusqu_a(lambda rang=rang: p.texte(f"lblMotDébut({rang})") in mots, f"row {rang} makes a word")
    mains.appuyer("cmdQuitter")
    p.attendre("lblMot(0)")
    points(p, rangees - 1, rangees)
    p.attendre("cmdQuitter", delai=40)
    p.verifier(all(e.texte in mots for e in visibles(p, "lblMot").values()), "the correction shows the words")
    mains.appuyer("cmdQuitter")
    return note(rangees - 1, rangees)


def ecrire(p, mains, mots):
    """The first word without its last letter."""
    for rang in range(1, len(mots) + 1):
        phrase = p.texte("lblPhrase")
        mains.appuyer("cmdCommencer")
        p.attendre("txtRéponse")
        mot = next(mot for mot in mots
                   if p.texte("lblPhrase") in (phrase[:m.start()] + "_" * 8 + phrase[m.end():]
                                               for m in re.finditer(re.escape(mot), phrase)))
        p.taper(mot[:-1] if rang == 1 else mot)
        p.touche("Return")
        points(p, rang - 1, rang)
        p.attendre_texte("lblCorrigé", mot if rang == 1 else "C'est très bien !")
        p.attendre("cmdCommencer")
        mains.appuyer("cmdCommencer")
        if rang < len(mots):
            p.attendre_disparition("frameMot")
    return note(len(mots) - 1, len(mots))


def tronque(p, mains):
    """A wrong try, then all pairs."""
    gauche = {e.texte: nom for nom, e in visibles(p, "lblMot1").items()}
    droite = {e.texte: nom for nom, e in visibles(p, "lblMot2").items()}
    paires = list(gauche)
    mains.appuyer(gauche[paires[0]])
    mains.appuyer(droite[paires[1]])
    p.attendre("lblNon")
    points(p, 0, 1)
    for rang, mot in enumerate(paires, 1):
        mains.appuyer(gauche[mot])
        mains.appuyer(droite[mot])
        points(p, rang, rang + 1)
    mains.appuyer("cmdQuitter")
    return note(len(paires), len(paires) + 1)


def seance(p):
    chemin = os.path.join(p.racine, TITRE + ".rtf")
    texte = texte_nettoye(chemin)
    mots = pilote.mots_barres(chemin)
    p.menu("Elève")
    p.choisir("cmbNoms", "Léa")
    p.clic("cmdOk")
    p.attendre_disparition("frameElève")
    p.clic("cmdCharger")
    p.fichier("Ouvrir un fichier texte", chemin)
    p.attendre_texte("lblTexte", TITRE)
    for clavier in (False, True):
        mains = Mains(p, clavier)
        maniere = "by keyboard" if clavier else "by mouse"
        for index, premier, jouer in ((TRONQUE, "lblMot1(0)", lambda: tronque(p, mains)),
                                      (INVERSES, "rtfPhrase", lambda: inverses(p, mains, texte)),
                                      (LIGNES, "lblLigne(0)", lambda: remettre(p, mains, texte, "lblLigne", 10, 2)),
                                      (PHRASES, "lblPhrase(0)", lambda: remettre(p, mains, texte, "lblPhrase", 12, 3)),
                                      (COUPES, "lblMotDébut(0)", lambda: coupes(p, mains, mots)),
                                      (ECRIRE, "lblPhrase", lambda: ecrire(p, mains, mots))):
            mains.appuyer(f"lblExo({index})")
            p.attendre(premier)
            p.capture(f"exercice-{index}")
            attendue = jouer()
            p.attendre(f"lblExo({index})")
            obtenue = p.lire_champs("Léa.bil")[3 + index].replace(",", ".")
            p.verifier_egal(obtenue, attendue, f"the score of exercise {index} {maniere}")


def lea(dossier):
    """She has read the text."""
    with open(os.path.join(dossier, "Léa.bil"), "w", encoding="cp1252", newline="") as fichier:
        fichier.writelines(f'"{champ}"\r\n' for champ in ["*", TITRE, "90"] + [""] * 28)


if __name__ == "__main__":
    sys.exit(pilote.lancer("ordre", seance, preparer=lea))
