#!/usr/bin/python3
"""Measures the RTF reader: reading a text and listing its marked words.

    bench/rtf.py [--programme build/bench/bench/banc-lire-rtf] [--dossier build/bancs]

Writes texts of 1, 10 and 100 MB with 5 % of struck words, as WordPad and as LibreOffice write them, then reads them
with banc-lire-rtf, unrtf --text and catdoc, in turns in the same run, as whole processes, the best of nine. Exit
code 1 when a goal is missed: 10 times unrtf, 3 times catdoc on 10 MB, time and memory in proportion to the size,
memory at most 12 times the file.
"""

import argparse
import os
import pathlib
import random
import shutil
import subprocess
import sys
import time

RACINE = pathlib.Path(__file__).resolve().parent.parent
MOTS = (
    "le la les un une des et mais où donc dans sur sous vers chez pour petite maison jardin rivière école forêt "
    "chemin lumière été hiver œuvre cœur garçon fillette élève maîtresse cahier crayon fenêtre château âne hérisson "
    "marche court regarde écoute préfère découvre traverse grimpe appelle chante rêve mange dort sourit déjà bientôt "
    "toujours jamais peut-être lentement l’arbre d’abord qu’il s’arrête aujourd’hui"
).split()


def paragraphes(taille_visée, hasard):
    """Lists of (text, struck) pieces, about as many as fill that many bytes of plain text."""
    taille = 0
    while taille < taille_visée:
        morceaux = []
        courant = []
        for i in range(hasard.randint(30, 120)):
            mot = hasard.choice(MOTS)
            if hasard.random() < 0.05:
                morceaux.append((" ".join(courant) + " " if courant else " ", False))
                morceaux.append((mot, True))
                courant = [""]
            else:
                courant.append(mot + (hasard.choice([".", ",", " !", ""]) if i % 9 == 8 else ""))
        morceaux.append((" ".join(courant), False))
        taille += sum(len(texte) for texte, _ in morceaux)
        yield morceaux


def échapper(texte, encodage):
    return "".join(c if c.isascii() else encodage(c) for c in texte)


def octet_1252(c):
    return f"\\'{c.encode('cp1252')[0]:02x}"


def unicode_et_1252(c):
    return f"\\u{ord(c)}{octet_1252(c)}"


def wordpad(taille, hasard):
    yield (
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\nouicompat\\deflang1036{\\fonttbl{\\f0\\fnil\\fcharset0 Calibri;}}\r\n"
        "{\\*\\generator Riched20 10.0.19041}\\viewkind4\\uc1 \r\n\\pard\\sa200\\sl276\\slmult1\\f0\\fs22\\lang12 "
    )
    for morceaux in paragraphes(taille, hasard):
        sortie = []
        for texte, barré in morceaux:
            texte = échapper(texte, octet_1252)
            sortie.append(f"\\strike {texte}\\strike0 " if barré else texte)
        yield "".join(sortie) + "\\par\r\n"
    yield "}\r\n\0"


def libreoffice(taille, hasard):
    # The head and the words before each paragraph are LibreOffice's own, from a text it saved.
    modèle = (RACINE / "tests" / "donnees" / "libreoffice-marques.rtf").read_text("ascii")
    début = modèle.index("\\pard\\plain")
    style = modèle[début : modèle.index("{\\loch", début)]
    yield modèle[:début]
    for morceaux in paragraphes(taille, hasard):
        sortie = [style]
        for texte, barré in morceaux:
            texte = échapper(texte, unicode_et_1252)
            sortie.append(f"{{\\loch\\strike\\loch\n{texte}}}" if barré else f"{{\\loch\n{texte}}}")
        yield "".join(sortie) + "\n\\par "
    yield "}"


def borner(morceaux, taille):
    """The pieces up to that size, and the last one, which closes the text."""
    écrits = 0
    dernier = None
    for morceau in morceaux:
        dernier = morceau
        if écrits < taille:
            écrits += len(morceau)
            if not morceau.startswith("}"):
                yield morceau
    yield dernier


def chronométrer(commande):
    """Seconds and peak kilobytes of one run."""
    avant = time.perf_counter()
    processus = subprocess.Popen(commande, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, statut, usage = os.wait4(processus.pid, 0)
    if statut != 0:
        raise SystemExit(f"{commande[0]} : code {statut}")
    return time.perf_counter() - avant, usage.ru_maxrss


def installer(programmes):
    manquants = [p for p in programmes if shutil.which(p) is None]
    if manquants:
        subprocess.run(["apt-get", "install", "-y", *manquants], check=True)


def main():
    analyse = argparse.ArgumentParser()
    analyse.add_argument("--programme", default=RACINE / "build/bench/bench/banc-lire-rtf")
    analyse.add_argument("--dossier", default=RACINE / "build/bancs", type=pathlib.Path)
    options = analyse.parse_args()
    installer(["unrtf", "catdoc"])
    options.dossier.mkdir(parents=True, exist_ok=True)

    manqués = []

    def vérifier(réussi, but):
        print(f"  {'tenu  ' if réussi else 'MANQUÉ'}  {but}")
        if not réussi:
            manqués.append(but)

    for nom, manière in (("wordpad", wordpad), ("libreoffice", libreoffice)):
        mesures = {}
        for mo in (1, 10, 100):
            fichier = options.dossier / f"{nom}-{mo}.rtf"
            if not fichier.exists():
                with open(fichier, "w", encoding="ascii", newline="") as flux:
                    flux.writelines(borner(manière(mo * 1_000_000, random.Random(mo)), mo * 1_000_000))
            taille = fichier.stat().st_size
            essais = [chronométrer([str(options.programme), str(fichier)]) for _ in range(7)]
            mesures[mo] = (min(s for s, _ in essais), max(k for _, k in essais), taille)
        print(nom)
        for mo, (secondes, kilooctets, taille) in mesures.items():
            print(f"  {taille / 1e6:6.1f} Mo  {secondes * 1000:7.1f} ms  {taille / secondes / 1e6:6.0f} Mo/s"
                  f"  {kilooctets * 1024 / taille:5.1f} fois le fichier en mémoire")

        fichier = str(options.dossier / f"{nom}-10.rtf")
        nôtres, unrtf, catdoc = [], [], []
        for _ in range(9):
            nôtres.append(chronométrer([str(options.programme), fichier])[0])
            unrtf.append(chronométrer(["unrtf", "--text", fichier])[0])
            catdoc.append(chronométrer(["catdoc", fichier])[0])
        face_à_unrtf = min(unrtf) / min(nôtres)
        face_à_catdoc = min(catdoc) / min(nôtres)
        print(f"  10 Mo : {min(nôtres) * 1000:.1f} ms, unrtf {min(unrtf) * 1000:.0f} ms, "
              f"catdoc {min(catdoc) * 1000:.0f} ms")
        vérifier(face_à_unrtf >= 10, f"{face_à_unrtf:.1f} fois la vitesse de unrtf (10)")
        vérifier(face_à_catdoc >= 3, f"{face_à_catdoc:.1f} fois la vitesse de catdoc (3)")
        croissance = mesures[100][0] / mesures[10][0]
        vérifier(croissance <= 13, f"100 Mo en {croissance:.1f} fois le temps de 10 Mo (13)")
        for mo in (10, 100):
            mémoire = mesures[mo][1] * 1024 / mesures[mo][2]
            vérifier(mémoire <= 12, f"{mo} Mo dans {mémoire:.1f} fois le fichier (12)")
    return 1 if manqués else 0


sys.exit(main())
