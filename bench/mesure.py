"""What the measures on the real window have in common: the probe, the texts, the pupil."""

import os
import random
import shutil
import subprocess
import sys

SOURCES = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(SOURCES, "tests", "bout-en-bout"))
import pilote  # noqa: E402

SONDE = os.environ.get("TIRELUNE_SONDE", os.path.join(SOURCES, "build", "bench", "bench", "bureau", "sonde"))
MOTS = (
    "le la les un une des et mais où donc dans sur sous vers chez pour petite maison jardin rivière école forêt "
    "chemin lumière été hiver garçon fillette élève maîtresse cahier crayon fenêtre château âne hérisson marche court "
    "regarde écoute préfère découvre traverse grimpe appelle chante rêve mange dort sourit déjà bientôt toujours "
    "jamais lentement aujourd'hui village escargot coquille pluie nuage vent soleil montagne"
).split()


class Sonde:
    """bench/bureau/sonde.cpp on the session's display: gestures, and the milliseconds to each change that followed."""

    def __init__(self, p):
        self.processus = subprocess.Popen([SONDE], env=p.ecran.environnement, stdin=subprocess.PIPE,
                                          stdout=subprocess.PIPE, text=True)

    def fermer(self):
        self.processus.stdin.close()
        self.processus.wait(5)

    def _ordre(self, *mots):
        print(*mots, file=self.processus.stdin, flush=True)
        reponse = self.processus.stdout.readline().strip()
        if reponse in ("", "?"):
            raise SystemExit(f"The probe does not answer: {' '.join(map(str, mots))}")
        return reponse

    def zone(self, place):
        self._ordre("zone", *place)

    def calme(self, calme, maximum=20000):
        self._ordre("calme", calme, maximum)

    @staticmethod
    def _changements(reponse):
        return [] if reponse == "-" else [int(un.split(":")[0]) / 1000 for un in reponse.split()]

    def clic(self, x, y):
        return self._changements(self._ordre("clic", x, y))

    def touche(self, symbole):
        return self._changements(self._ordre("touche", symbole))


def exiger_les_programmes():
    for executable, preset in ((pilote.PROGRAMME, "release"), (SONDE, "bench")):
        if not os.access(executable, os.X_OK):
            raise SystemExit(f"{executable} is missing: build the preset {preset}.")


class Texte:
    """About so many characters of sentences and so many marked words, always the same for the same figures.

    No mark stands on the first or the last word, and no two stand side by side. All marked words are different as
    long as there are words enough.
    """

    def __init__(self, caracteres, marques=0, graine=1):
        hasard = random.Random(graine)
        mots, longueur = [], 0
        while longueur < caracteres:
            mots.append(hasard.choice(MOTS))
            longueur += len(mots[-1]) + 1
        pas = len(mots) / (marques + 1)
        self.marques = sorted({max(1, round((i + 1) * pas)) for i in range(marques)})
        longs = [mot for mot in MOTS if len(mot) > 3]
        for rang, place in enumerate(self.marques):
            mots[place] = longs[rang % len(longs)]
        self.texte, self.gaps, rtf = "", [], []
        for rang, mot in enumerate(mots):
            if rang in self._ensemble():
                self.gaps.append((len(self.texte), mot))
                rtf.append("\\strike " + self._echapper(mot) + "\\strike0 ")
            else:
                rtf.append(self._echapper(mot))
            self.texte += mot
            fin = "." if rang + 1 == len(mots) else ".\n" if rang % 60 == 59 else ". " if rang % 12 == 11 else " "
            self.texte += fin
            rtf.append(fin.replace("\n", "\\par\r\n"))
        self.rtf = ("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fscript Comic Sans MS;}}\r\n\\pard\\f0\\fs28 "
                    + "".join(rtf) + "\\par\r\n}\r\n")

    def _ensemble(self):
        if not hasattr(self, "_places"):
            self._places = frozenset(self.marques)
        return self._places

    @staticmethod
    def _echapper(mot):
        return "".join(c if c.isascii() else f"\\'{c.encode('cp1252')[0]:02x}" for c in mot)

    def ecrire(self, dossier, titre):
        with open(os.path.join(dossier, titre + ".rtf"), "w", encoding="ascii", newline="") as fichier:
            fichier.write(self.rtf)


def ecrire_champs(chemin, valeurs):
    with open(chemin, "wb") as fichier:
        fichier.write("".join(f'"{valeur}"\r\n' for valeur in valeurs).encode("cp1252"))


def preparer_lexique(dossier, titre):
    """Twelve entries of each kind, and a questionnaire: all exercises can be played."""
    mots = [mot for mot in MOTS if len(mot) > 3]
    entrees = [(mots[i], mots[i + 12], mots[i + 24]) for i in range(12)]

    def fichier(nom, lignes):
        ecrire_champs(os.path.join(dossier, nom), [valeur for ligne in lignes for valeur in ("*", *ligne)])
    definitions = [(a, "Ce que dit le mot " + a, "Voici " + a + " dans une phrase.") for a, _, _ in entrees]
    fichier("DicPrinc.dat", definitions)
    fichier(titre + ".dic", definitions)
    fichier("Synonymes.dat", entrees)
    fichier("Contraires.dat", entrees)
    fichier("Genre.dat", [e[:2] for e in entrees])
    fichier("Familles.dat", [("thème" + str(i), "", *mots[4 * i:4 * i + 6]) for i in range(6)])
    shutil.copy(os.path.join(SOURCES, "textes", "La course des escargots.qst"),
                os.path.join(dossier, titre + ".qst"))


def preparer(dossier, textes):
    """The texts by their titles; the pupil has read all of them, so that every exercise opens."""
    champs = []
    for titre, texte in textes.items():
        texte.ecrire(dossier, titre)
        champs += ["*", titre, "100"] + [""] * 28
    ecrire_champs(os.path.join(dossier, "Léa.bil"), champs)
    ecrire_champs(os.path.join(dossier, "CodeEnseignant.txt"), [""])


def entrer_eleve(p):
    p.menu("Elève")
    p.clic("cmdOk")
    p.attendre_disparition("frameElève")


def charger(p, titre):
    p.clic("cmdCharger")
    p.fichier("Ouvrir un fichier texte", os.path.join(p.racine, titre + ".rtf"))
    p.attendre_texte("lblTexte", titre)


def entrer_enseignant(p):
    """The code's file holds an empty code."""
    p.menu("Enseignant")
    p.clic("cmdCode")
    p.attendre("tlbBoutons")


def centile(valeurs, part):
    """The smallest value that so many in a hundred do not exceed."""
    rangees = sorted(valeurs)
    return rangees[max(0, -(-len(rangees) * part // 100) - 1)]


def ouvrir(nom, preparation, taille=(1024, 768)):
    """The program in a fresh folder, with the probe beside it."""
    exiger_les_programmes()
    p = pilote.Pilote("mesure-" + nom, taille, preparation)
    try:
        return p, Sonde(p)
    except BaseException:
        p.fermer()
        raise
