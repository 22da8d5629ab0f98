#!/usr/bin/python3
"""L'absent, Trouve-moi, Je corrige, Ecrire une phrase and Ordre alphabétique, each played twice to its end: with the
mouse, with right and wrong answers and the exact score in the results file; then by keyboard alone."""

import os
import re
import sys
import unicodedata

import pilote

TITRE = "Le hérisson du jardin"
TROUVE_MOI, ABSENT, CORRIGER, PHRASE, ALPHABET = 15, 16, 24, 25, 26
NOTES = 3  # fields before the scores


class Souris:
    """How the pupil presses, and picks a character of a text."""

    def __init__(self, p):
        self.p = p
        self.presser = p.clic

    def caractere(self, boite, rang):
        self.p.clic_caractere(boite, rang)


class Clavier:
    def __init__(self, p):
        self.p = p
        self.presser = p.presser

    def caractere(self, boite, rang):
        """By words as far as they are sure not to lead too far, then by letters."""
        self.p.aller(boite)
        texte = self.p.texte(boite)
        ici = self.ou(boite)
        mots = len(re.findall(r"\w+", texte[ici:rang])) - 1
        if mots > 0:
            self.p.touche(*["ctrl+Right"] * mots, pas=5)
            self.p.jusqu_a(lambda: (la := self.ou(boite)) > ici and self.ou(boite) == la, "the keyboard goes on by words")
        while (ici := self.ou(boite)) != rang:
            self.p.touche(*["Right" if ici < rang else "Left"] * abs(rang - ici), pas=5)
            self.p.jusqu_a(lambda: self.ou(boite) == rang, "it goes on by letters")
        self.p.touche("Return")

    def ou(self, boite):
        """The character that the keyboard points at."""
        return pilote.Atspi.Text.get_caret_offset(self.p.attendre(boite).accessible.get_text_iface())


def finir(p, rang, bouton, attendue, quoi):
    """The last button, and the score in the file, to the digits that it holds."""
    bouton()
    p.attendre_fenetre("frmExercices")
    note = p.lire_champs("Léa.bil")[NOTES + rang]
    p.verifier(note and abs(float(note.replace(",", ".")) - attendue) < 1e-6, f"{quoi}: {note} in the file for {attendue}")


def points(p, bons, tous):
    p.attendre_texte("lblPoints(0)", str(bons))
    p.attendre_texte("lblPoints(1)", str(tous))


def ouvrir(p, main, rang, premier):
    p.attendre_fenetre("frmExercices")
    main.presser(f"lblExo({rang})")
    p.attendre(premier)


def trouver_l_absent(p, main, fautes, attendue, quoi):
    ouvrir(p, main, ABSENT, "lblMot(0)")
    depart = int(p.texte("lblChrono"))
    p.verifier(depart <= 30, f"{quoi}: the time starts at thirty seconds")
    for rang in range(1, 11):
        droite = [p.texte(f"lblAbsent({i})") for i in range(10) if p.chercher(f"lblAbsent({i})")]
        gauche = [p.texte(f"lblMot({i})") for i in range(10) if p.chercher(f"lblMot({i})")]
        juste = next(i for i, mot in enumerate(gauche) if mot.upper() == droite[-1])
        main.presser(f"lblMot({juste if rang > fautes else (juste + 1) % len(gauche)})")
        points(p, max(0, rang - fautes), rang)
        if rang < 10:
            main.presser("cmdQuitter")
            p.attendre_disparition("cmdQuitter")
    p.capture("absent-fin")
    finir(p, ABSENT, lambda: main.presser("cmdQuitter"), attendue, quoi)


def trouver_le_mot(p, main, fautes, attendue, quoi):
    ouvrir(p, main, TROUVE_MOI, "rtfRéponse")
    for rang in range(1, 11):
        debut, fin = p.jusqu_a(lambda: len(set(ou := p.selection("rtfTexte"))) == 2 and ou, "a word is picked out")
        if rang == 1:
            p.verifier_egal(p.texte("rtfTexte")[debut:fin], p.texte("rtfRéponse")[debut:fin].upper(),
                            f"{quoi}: the texts say the same")
        main.caractere("rtfRéponse", 0 if rang <= fautes else debut)
        points(p, max(0, rang - fautes), rang)
        if rang == 1:
            p.capture("trouve-moi")
        if rang < 10:
            main.presser("cmdSuivant")
            p.attendre_disparition("cmdSuivant")
    finir(p, TROUVE_MOI, lambda: main.presser("cmdSuivant"), attendue, quoi)


def corriger(p, main, cle, fautes, quoi):
    """The score depends on how many faults there were."""
    ouvrir(p, main, CORRIGER, "rtfCorrige")
    vu = p.texte("rtfCorrige")
    mots = [m.span() for m in re.finditer(r"\w+", cle) if vu[slice(*m.span())] != m[0]]
    p.verifier(0 < len(mots) <= 20, f"{quoi}: {len(mots)} words have a fault")
    for rang, (debut, fin) in enumerate(mots, 1):
        main.caractere("rtfCorrige", debut + 1)
        p.attendre("txtMot")
        p.jusqu_a(lambda: p.application.noms.focus() == "txtMot", "the keyboard is where the word is typed")
        p.taper("x" if rang <= fautes else cle[debut:fin])
        p.touche("Return")
        points(p, max(0, rang - fautes), rang)
    p.attendre("frameFin")
    p.verifier_egal(p.texte("rtfCorrige"), cle, f"{quoi}: the text is whole again")
    finir(p, CORRIGER, lambda: main.presser("cmdQuitter"), (len(mots) - fautes) / len(mots) * 10, quoi)


def ecrire(p, main, fautes, quoi):
    ouvrir(p, main, PHRASE, "rtfPhrase")
    phrase = p.texte("rtfPhrase")
    total = bons = 0
    for etape in (1, 2, 3):
        main.presser("cmdCommencer")
        p.attendre_disparition("cmdCommencer")
        lettres = [lettre for lettre, vue in zip(phrase, p.texte("rtfPhrase")) if vue == "_"]
        fausses = (6, 12)[:fautes] if etape == 3 else ()

        def taper(frappe, reste):
            p.taper_a_la_francaise(frappe)
            p.jusqu_a(lambda: p.texte("rtfPhrase").count("_") == reste, f"{frappe!r} is written")

        debut = 0
        for faux in (*fausses, len(lettres)):
            taper("".join(lettres[debut:faux]), len(lettres) - faux)
            if etape == 3:
                bons += faux - debut
            if faux < len(lettres):
                taper("#", len(lettres) - faux - 1)
                bons = max(0, bons - 4)
                p.capture("phrase-erreur")
                main.presser("cmdErreur")
                p.attendre_disparition("cmdErreur")
            debut = faux + 1
        total = len(lettres)
        p.verifier_egal(p.texte("rtfPhrase"), phrase, f"{quoi}: stage {etape} is written")
    points(p, bons, total)
    finir(p, PHRASE, lambda: main.presser("cmdCommencer"), bons / total * 10, quoi)


def cle_alphabetique(mot):
    return "".join(c for c in unicodedata.normalize("NFD", mot.lower()) if c.isalnum() or c == "'")


def points_de_l_ordre(mots):
    """Gained by a column: each word against the one above it."""
    gagnes = 0
    for avant, mot in zip(mots, mots[1:]):
        gagnes = gagnes + 1 if cle_alphabetique(mot) > cle_alphabetique(avant) else max(0, gagnes - 1)
    return gagnes


def ranger(p, main, par_glisse, rangs, quoi):
    """So many words come to their places from the top on; then the first two are exchanged."""
    ouvrir(p, main, ALPHABET, "rtfMot(0)")

    def colonne():
        return [p.texte(f"rtfMot({i})") for i in range(10) if p.chercher(f"rtfMot({i})")]

    def deplacer(de, vers):
        attendu = colonne()
        attendu.insert(vers, attendu.pop(de))
        if par_glisse:
            milieux = [(x + l // 2, y + h // 2) for x, y, l, h in (p.attendre(f"rtfMot({i})").place for i in (de, vers))]
            p.glisser(*milieux)
        else:
            main.presser(f"rtfMot({de})")
            main.presser(f"rtfMot({vers})")
        p.jusqu_a(lambda: colonne() == attendu, f"{attendu[vers]!r} has moved")

    for rang, mot in enumerate(sorted(colonne(), key=cle_alphabetique)[:rangs]):
        if colonne().index(mot) != rang:
            deplacer(colonne().index(mot), rang)
    deplacer(1, 0)
    mots = colonne()
    attendus = points_de_l_ordre(mots)
    main.presser("cmdQuitter")
    p.attendre_texte("cmdQuitter", "Quitter", delai=40)
    p.capture("alphabet-fin")
    points(p, attendus, len(mots) - 1)
    finir(p, ALPHABET, lambda: main.presser("cmdQuitter"), attendus / (len(mots) - 1) * 10, quoi)


def garnir(dossier):
    """Léa has read the text."""
    with open(os.path.join(dossier, "Léa.bil"), "w", encoding="cp1252", newline="") as fichier:
        fichier.writelines(f'"{champ}"\r\n' for champ in ["*", TITRE, "90", *[""] * 28])


def texte_brut(p):
    """What the text says, read without the program's help, a character to a place."""
    with open(os.path.join(p.racine, TITRE + ".rtf"), encoding="cp1252", newline="") as fichier:
        corps = re.sub(r"^.*?}}|[\r\n]|}\s*$", "", fichier.read(), flags=re.DOTALL)
    corps = re.sub(r"\\'(..)", lambda m: bytes.fromhex(m[1]).decode("cp1252"), corps)
    return re.sub(r"\\[a-z]+\d* ?", lambda m: "\n" if m[0].strip() == "\\par" else "", corps)


def seance(p):
    p.attendre_menu("Elève")
    p.menu("Elève")
    p.choisir("cmbNoms", "Léa")
    p.clic("cmdOk")
    p.attendre_disparition("frameElève")
    p.clic("cmdCharger")
    p.fichier("Ouvrir un fichier texte", os.path.join(p.racine, TITRE + ".rtf"))
    p.attendre_texte("lblTexte", TITRE)
    cle = texte_brut(p)

    souris, clavier = Souris(p), Clavier(p)
    trouver_l_absent(p, souris, 3, 7, "L'absent")
    trouver_le_mot(p, souris, 1, 9, "Trouve-moi")
    corriger(p, souris, cle, 2, "Je corrige")
    ecrire(p, souris, 2, "Ecrire une phrase")
    ranger(p, souris, True, 10, "Ordre alphabétique")

    trouver_l_absent(p, clavier, 0, 10, "L'absent by keyboard")
    trouver_le_mot(p, clavier, 9, 1, "Trouve-moi by keyboard")
    corriger(p, clavier, cle, 1, "Je corrige by keyboard")
    ecrire(p, clavier, 1, "Ecrire une phrase by keyboard")
    ranger(p, clavier, False, 2, "Ordre alphabétique by keyboard")

    p.touche("alt+F4")
    p.attendre_menu("Quitter")
    p.menu("Quitter")
    p.verifier_egal(p.attendre_fin(), 0, "the program ends well")


if __name__ == "__main__":
    sys.exit(pilote.lancer("orthographe", seance, preparer=garnir))
