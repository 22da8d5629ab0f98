#!/usr/bin/python3
"""A pupil plays the six exercises on the lexicon to their end, with a mistake in each; the scores are compared."""

import os
import sys

import pilote

TITRE = "La course des escargots"
SECONDES_DE_CORRECTION = 10
TEXTE = [("veille", "Le jour d'avant.", "La veille de Noël, il a neigé."), ("minuscule", "Très petit.", "")]
GENERAL = TEXTE + [(f"mot{i}", f"Le mot numéro {i}.", f"Voici le mot{i}.") for i in range(8)]
SYNONYMES = [("joyeux", "gai", "content"), ("peur", "crainte"), ("maison", "demeure", "logis"), ("casser", "briser"),
             ("crier", "hurler"), ("finir", "terminer", "achever"), ("bateau", "navire"), ("drôle", "amusant"),
             ("vélo", "bicyclette"), ("fâché", "furieux")]
CONTRAIRES = [("grand", "petit"), ("chaud", "froid"), ("jour", "nuit"), ("plein", "vide"), ("propre", "sale"),
              ("rapide", "lent"), ("riche", "pauvre"), ("vieux", "jeune", "neuf"), ("fort", "faible"), ("haut", "bas")]
GENRE = [("lion", "lionne"), ("roi", "reine"), ("maître", "maîtresse"), ("coq", "poule"), ("neveu", "nièce"),
         ("ouvrier", "ouvrière"), ("voisin", "voisine"), ("chien", "chienne"), ("prince", "princesse"), ("loup", "louve")]
FAMILLES = [(f"thème{i}", "", *(f"{lettre}{i}" for lettre in "abcde")) for i in range(8)] + [
    ("animaux", "ferme", "vache", "poule", "mouton", "âne", "cochon"), ("animaux", "mer", "crabe", "requin")]


def sans_etat(entendu):
    """Without what tells that it is chosen, right or wrong."""
    for etat in (", choisi", ", juste", ", faux"):
        entendu = entendu.removesuffix(etat)
    return entendu.strip()


def texte(p, nom):
    return sans_etat(p.texte(nom))


def ouvrir(p, exercice, premier):
    p.clic(f"lblExo({exercice})")
    p.attendre(premier)


def quitter(p, exercice, note):
    p.clic("cmdQuitter")
    p.attendre("lblExo(0)")
    p.verifier_egal(p.lire_champs("Léa.bil")[3 + exercice].replace(",", "."), note, f"the score of exercise {exercice}")


def placer(p, case, liste, mot):
    p.clic(case)
    p.clic(liste)
    p.clic(p.attendre_valeur(mot))
    p.jusqu_a(lambda: texte(p, case) == mot, f"{case} holds {mot!r}")


def corriger(p, justes, sur=10):
    """The correction takes a second for each row."""
    p.clic("cmdQuitter")
    if p.chercher("cmdQuitter") is None:  # the box that asks about the empty rows is in front
        p.boite("Tu n'a pas terminé !", "Oui")
    p.jusqu_a(lambda: p.texte("cmdQuitter") == "Quitter", "all rows are corrected", pilote.DELAI + SECONDES_DE_CORRECTION)
    p.verifier_egal(texte(p, "lblPoints(0)"), str(justes), "right rows")
    p.verifier_egal(texte(p, "lblPoints(1)"), str(sur), "rows corrected")


def dictionnaire(p):
    """Two words make four rounds; the first answer is wrong."""
    ouvrir(p, 5, "lblConsigne")
    for tour, (mot, definition, _) in enumerate(TEXTE + TEXTE):
        par_mot = tour >= len(TEXTE)
        p.attendre_texte("lblConsigne", "Quel est le mot correspondant à cette définition ?" if par_mot
                         else "Quelle est la définition correspondant à ce mot ?")
        question, reponses, juste = ("txtDéf(4)", "lblMot", mot) if par_mot else ("lblMot(4)", "txtDéf", definition)
        p.jusqu_a(lambda q=question, d=definition if par_mot else mot: texte(p, q) == d, "the question is there")
        vus = {texte(p, f"{reponses}({i})"): i for i in range(10)}
        p.verifier_egal(len(vus), 10, "ten different choices")
        choisi = next(i for vu, i in vus.items() if (vu == juste) == (tour > 0))
        p.clic(f"{reponses}({choisi})")
        p.attendre_texte("lblPoints(1)", str(tour + 1))
        p.verifier(p.texte(f"{reponses}({choisi})").endswith(", juste" if tour else ", faux"), "the answer is judged")
        p.capture(f"dictionnaire-{tour + 1}")
        if tour < 3:
            p.clic("cmdSuivant")
    p.verifier_egal(p.texte("cmdSuivant"), "Quitter", "the last click of the button quits")
    p.clic("cmdSuivant")
    p.attendre("lblExo(0)")
    p.verifier_egal(p.lire_champs("Léa.bil")[8].replace(",", "."), "7.5", "three answers of four")


def synonymes(p):
    """A row stays empty."""
    ouvrir(p, 6, "cmbSynonymes")
    rangees = [set(texte(p, f"txtSynonymes({i})").removesuffix("-").strip().split(" - ")) for i in range(10)]
    reponses = [next(mot for fiche in SYNONYMES for mot in fiche if set(fiche) - {mot} == reste) for reste in rangees]
    for i in range(1, 10):
        placer(p, f"lblMot({i})", "cmbSynonymes", reponses[i])
    corriger(p, 9)
    p.verifier_egal(texte(p, "lblCorrigé(0)"), reponses[0], "the empty row shows its word")
    p.capture("synonymes")
    quitter(p, 6, "9")


def contraires(p):
    """Two rows have each other's word; a third word is taken back first."""
    ouvrir(p, 7, "cmbContraires")
    rangees = [texte(p, f"txtContraires({i})").removesuffix("-").strip() for i in range(10)]
    reponses = [next(fiche[0] for fiche in CONTRAIRES if " - ".join(fiche[1:]) == reste) for reste in rangees]
    placer(p, "lblMot(0)", "cmbContraires", reponses[2])
    p.clic("txtContraires(0)")
    p.jusqu_a(lambda: texte(p, "lblMot(0)") == "vide", "the word goes back")
    for i, mot in enumerate([reponses[1], reponses[0], *reponses[2:]]):
        placer(p, f"lblMot({i})", "cmbContraires", mot)
    corriger(p, 8)
    p.verifier_egal([i for i in range(10) if p.chercher(f"lblCorrigé({i})")], [0, 1], "the rows told as wrong")
    p.capture("contraires")
    quitter(p, 7, "8")


def genre(p):
    ouvrir(p, 8, "cmbGenre")
    feminins = {f"un {masculin}": f"une {feminin}" for masculin, feminin in GENRE}
    reponses = [feminins[texte(p, f"lblMasculin({i})")] for i in range(10)]
    for i in range(9):
        placer(p, f"lblFéminin({i})", "cmbGenre", reponses[i])
    corriger(p, 9)
    p.capture("genre")
    quitter(p, 8, "9")


def themes(p):
    ouvrir(p, 9, "txtThèmes(0)")
    noms = {" - ".join(mots): f"{theme} / {sous}" if sous else theme for theme, sous, *mots in FAMILLES}
    reponses = [noms[texte(p, f"txtThèmes({i})").removesuffix("-").strip()] for i in range(10)]
    for i in range(9):
        placer(p, f"lblMot({i})", "cmbThèmes", reponses[i])
    corriger(p, 9)
    p.capture("themes")
    quitter(p, 9, "9")


def themes2(p):
    """Any word of the family will do, but each is in the list once."""
    ouvrir(p, 10, "txtMots(0)")
    familles = {sous or theme: mots for theme, sous, *mots in FAMILLES}
    p.clic("cmbThèmes")
    p.attendre_valeur("requin") if not p.chercher_valeur("crabe") else None
    offerts = [mot for mots in familles.values() for mot in mots if p.chercher_valeur(mot)]
    p.touche("Escape")
    p.verifier_egal(len(offerts), 10, "ten answers")
    for i in range(9):
        famille = familles[texte(p, f"lblThème({i})")]
        montres = texte(p, f"txtMots({i})").split(" - ")
        placer(p, f"lblRéponse({i})", "cmbThèmes", next(m for m in offerts if m in famille and m not in montres))
    corriger(p, 9)
    p.capture("themes2")
    quitter(p, 10, "9")


def seance(p):
    p.menu("Elève")
    p.choisir("cmbNoms", "Léa")
    p.clic("cmdOk")
    p.attendre_disparition("frameElève")
    p.clic("cmdCharger")
    p.fichier("Ouvrir un fichier texte", os.path.join(p.racine, TITRE + ".rtf"))
    p.attendre_texte("lblTexte", TITRE)
    for jouer in (dictionnaire, synonymes, contraires, genre, themes, themes2):
        jouer(p)
    p.clic("cmdQuitter")
    p.attendre_menu("Elève")
    p.menu("Quitter")
    p.verifier_egal(p.attendre_fin(), 0, "the program ends well")
    notes = [note.replace(",", ".") for note in p.lire_champs("Léa.bil")]
    p.verifier_egal(notes, ["*", TITRE, "90", *[""] * 5, "7.5", "9", "8", "9", "9", "9", *[""] * 17],
                    "the pupil's file")


def poser_le_lexique(dossier):
    def ecrire(nom, valeurs):
        with open(os.path.join(dossier, nom), "w", encoding="cp1252", newline="") as fichier:
            fichier.writelines(f'"{valeur}"\r\n' for valeur in valeurs)
    for nom, fiches in ((TITRE + ".dic", TEXTE), ("DicPrinc.dat", GENERAL), ("Synonymes.dat", SYNONYMES),
                        ("Contraires.dat", CONTRAIRES), ("Genre.dat", GENRE), ("Familles.dat", FAMILLES)):
        ecrire(nom, [valeur for fiche in fiches for valeur in ("*", *fiche)])
    ecrire("Léa.bil", ["*", TITRE, "90", *[""] * 28])


if __name__ == "__main__":
    sys.exit(pilote.lancer("vocabulaire", seance, preparer=poser_le_lexique))
