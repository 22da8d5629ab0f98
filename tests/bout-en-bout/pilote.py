"""Drives the built program as a person would: a virtual display, a mouse, a keyboard, and nothing mocked.

A session is a file seance-*.py:

    import sys
    import pilote

    def seance(p):
        p.menu("Elève")
        p.clic("cmdOk")
        p.verifier(p.texte("lblTexte") == "", "no text yet")

    sys.exit(pilote.lancer("ma-seance", seance))

Widgets are found by their object name, which is the element's own, "cmdOk" or "lblExo(3)"; values of lists, menus and
boxes by what assistive tools hear.
Each step waits until the screen is ready for it, and fails when that takes too long; nothing sleeps and hopes.
A name is looked for in the active window, so that the same name in a window below is not taken for it.
"""

import collections
import ctypes
import os
import re
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import traceback

SOURCES = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
PROGRAMME = os.environ.get("TIRELUNE_PROGRAMME", os.path.join(SOURCES, "build", "release", "desktop", "tirelune"))
# The toolkit's bridge tells no object names: a plugin that only the sessions load does.
GREFFONS = os.environ.get("TIRELUNE_GREFFONS", os.path.join(SOURCES, "build", "release", "tests", "greffon"))
CAPTURES = os.path.join(SOURCES, "build", "seance")
DELAI = 20.0  # seconds, for anything that is to happen
DELAI_DOUBLE_CLIC = 0.5  # seconds, somewhat more than the program's
DISTANCE_DOUBLE_CLIC = 12  # pixels, the same
PAS = 0.03    # between two looks
SANS_TOUCHE = "âêîôûäëïöüÿñæœÀÂÉÈÊËÎÏÔÛÙÜÇÆŒ«»’…–—\u00a0"

# The letters that take two keys, and these keys.
PAR_TOUCHE_MORTE = {accentuee: (touche, lettre)
                    for touche, accentuees, lettres in (("dead_circumflex", "âêîôûÂÊÎÔÛ", "aeiouAEIOU"),
                                                        ("dead_diaeresis", "äëïöüÄËÏÖÜ", "aeiouAEIOU"))
                    for accentuee, lettre in zip(accentuees, lettres)}


class Absent(Exception):
    """What was waited for did not come."""


def mourir_avec_le_pere():
    """Run in each child: it ends when the driver ends, whatever the reason."""
    ctypes.CDLL(None).prctl(1, signal.SIGTERM)
    os.setpgid(0, 0)


def demarrer(commande, **options):
    return subprocess.Popen(commande, preexec_fn=mourir_avec_le_pere, stdin=subprocess.DEVNULL, **options)


def arreter(processus):
    if processus is None or processus.poll() is not None:
        return
    processus.terminate()
    try:
        processus.wait(5)
    except subprocess.TimeoutExpired:
        processus.kill()
        processus.wait()


def ligne_de(tuyau, quoi):
    """The line that a helper writes on a pipe when it is ready."""
    recu = b""
    fin = time.monotonic() + DELAI
    while not recu.endswith(b"\n"):
        if not select.select([tuyau], [], [], max(0, fin - time.monotonic()))[0]:
            raise Absent(f"{quoi} did not start")
        morceau = os.read(tuyau, 1)
        if not morceau:
            raise Absent(f"{quoi} ended at once")
        recu += morceau
    return recu.decode().strip()


class Ecran:
    """A virtual display, with a window manager unless told otherwise."""

    def __init__(self, taille=(1024, 768), gestionnaire=True):
        lire, ecrire = os.pipe()
        self.gestionnaire = None
        self.serveur = demarrer(
            ["Xvfb", "-displayfd", str(ecrire), "-screen", "0", f"{taille[0]}x{taille[1]}x24",
             "-nolisten", "tcp", "-noreset"],
            pass_fds=[ecrire], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(ecrire)
        self.numero = ":" + ligne_de(lire, "Xvfb")
        os.close(lire)
        self.environnement = dict(os.environ, DISPLAY=self.numero)
        self._poser_clavier()
        if gestionnaire:
            self.gestionnaire = demarrer(["openbox"], env=self.environnement, stdout=subprocess.DEVNULL,
                                         stderr=subprocess.DEVNULL)
            # A window shown before it is there would be placed and given the keyboard late.
            fin = time.monotonic() + DELAI
            while subprocess.run(["xdotool", "get_num_desktops"], env=self.environnement, stdout=subprocess.DEVNULL,
                                 stderr=subprocess.DEVNULL).returncode != 0:
                if time.monotonic() > fin:
                    raise Absent("the window manager did not start")
                time.sleep(PAS)

    def _poser_clavier(self):
        """A French keyboard, with keys of their own for the letters that it has none for.

        A letter that stands on no key would be typed by changing the keyboard on the way, which the program may
        see too late.
        """
        clavier = subprocess.run(["setxkbmap", "fr", "-print"], env=self.environnement, check=True,
                                 stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout.decode()
        touches = "".join(f"key <I{code}> {{ [ U{ord(lettre):04X} ] }}; "
                          for code, lettre in zip(range(208, 256), SANS_TOUCHE))
        clavier = re.sub(r'(xkb_symbols\s*\{.*?)\};', lambda m: m[1] + touches + "};", clavier)
        subprocess.run(["xkbcomp", "-w0", "-", self.numero], env=self.environnement, check=True,
                       input=clavier.encode(), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def fermer(self):
        arreter(self.gestionnaire)
        arreter(self.serveur)


class Noms:
    """The object names in a running program, told by tests/greffon; they never change."""

    def __init__(self, numero):
        self.service = f"fr.tirelune.p{numero}"
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.connus = {}

    def nom(self, chemin):
        if chemin not in self.connus:
            self.connus[chemin] = self._demander_de(chemin, "nom") or ""
        return self.connus[chemin]

    def montre_la_main(self, chemin):
        return bool(self._demander_de(chemin, "montreLaMain"))

    def focus(self):
        """Of what has the keyboard."""
        return self._demander("focus", None)

    def _demander_de(self, chemin, quoi):
        numero = chemin.rpartition("/")[2]
        return self._demander(quoi, GLib.Variant("(u)", (int(numero),))) if numero.isdigit() else None

    def _demander(self, quoi, arguments):
        return self.bus.call_sync(self.service, "/noms", "fr.tirelune.Noms", quoi, arguments, None,
                                  Gio.DBusCallFlags.NONE, 15000).unpack()[0]


class Element:
    """A widget as assistive tools see it, and its object name."""

    def __init__(self, accessible, noms=None):
        self.accessible = accessible
        self.noms = noms

    @property
    def identifiant(self):
        """The object name; none for what is no widget, as an item of a list."""
        return self.noms.nom(self.accessible.path) if self.noms else ""

    @property
    def nom(self):
        """What is heard."""
        return self.accessible.get_name()

    @property
    def description(self):
        return self.accessible.get_description()

    @property
    def actions(self):
        actions = self.accessible.get_action_iface()
        if actions is None:
            return []
        return [Atspi.Action.get_action_name(actions, i) for i in range(Atspi.Action.get_n_actions(actions))]

    def agir(self, action):
        """What an assistive tool does instead of a click."""
        Atspi.Action.do_action(self.accessible.get_action_iface(), self.actions.index(action))

    @property
    def montre_la_main(self):
        """The pointer says that a click does something."""
        return self.noms.montre_la_main(self.accessible.path)

    @property
    def role(self):
        return self.accessible.get_role_name()

    def etat(self, nom):
        """nom: "SHOWING", "SENSITIVE", "CHECKED"... as in AT-SPI."""
        return self.accessible.get_state_set().contains(getattr(Atspi.StateType, nom))

    @property
    def visible(self):
        return self.etat("SHOWING")

    @property
    def place(self):
        """Left, top, width, height on the display."""
        r = self.accessible.get_extents(Atspi.CoordType.SCREEN)
        return r.x, r.y, r.width, r.height

    @property
    def enfants(self):
        resultat = []
        for i in range(self.accessible.get_child_count()):
            enfant = self.accessible.get_child_at_index(i)
            if enfant is not None:
                resultat.append(Element(enfant, self.noms))
        return resultat

    @property
    def texte(self):
        """What it shows: the contents of a text box, the value of a list, the caption of a label."""
        contenu = self.accessible.get_text_iface()
        if contenu is not None and not self.role.endswith("button"):
            longueur = Atspi.Text.get_character_count(contenu)
            if self.role == "password text":  # nobody is told more
                return "*" * longueur
            return Atspi.Text.get_text(contenu, 0, longueur)
        if self.role == "combo box":
            return self.nom.partition(" : ")[2]  # behind its label
        return self.nom

    def descendants(self):
        """In the order of the tree, leaving out what hides below something that isn't shown."""
        attente = self.enfants
        while attente:
            suivants = []
            for enfant in attente:
                yield enfant
                if enfant.visible:
                    suivants += enfant.enfants
            attente = suivants


class Annonces:
    """What is read out by itself while this is in use, in order: the words that come up in a notification."""

    def __enter__(self):
        self.dites = []
        self.oreille = Atspi.EventListener.new(self._entendre)
        self.oreille.register("object:state-changed:showing")
        return self

    def __exit__(self, *echec):
        self.oreille.deregister("object:state-changed:showing")

    def _entendre(self, evenement, *_):
        if evenement.detail1 and evenement.source.get_role() == Atspi.Role.NOTIFICATION:
            self.dites.append(" ".join(enfant.nom for enfant in Element(evenement.source).enfants))

    def entendues(self):
        while GLib.MainContext.default().iteration(False):
            pass
        return self.dites


def sans_esperluette(libelle):
    return " ".join(libelle.replace("&", "").split())


class Pilote:
    """The program running on a display of its own, and the hands and eyes of its user."""

    def __init__(self, nom, taille=(1024, 768), preparer=None, enveloppe=()):
        """preparer(folder) may add files to the fresh folder before the program starts in it.

        enveloppe: a command that runs the program, as `env NAME=VALUE`, and becomes it.
        """
        self.nom = nom
        self.taille = taille
        self.enveloppe = enveloppe
        self.reussis = self.echoues = self.numero_capture = 0
        self.dernier_clic = 0, 0, 0.0
        self.captures = os.path.join(CAPTURES, nom)
        shutil.rmtree(self.captures, ignore_errors=True)
        os.makedirs(self.captures)
        self.racine = os.path.join(self.captures, "Tirelune")  # kept, with the results file in it
        subprocess.run([os.path.join(SOURCES, "tools", "disposer"), PROGRAMME, self.racine], check=True)
        if preparer:
            preparer(self.racine)
        if not os.path.isdir(os.path.join(GREFFONS, "generic")):
            raise Absent(f"the plugin in {GREFFONS}: build the target noms of the preset release")
        self.maison = tempfile.mkdtemp(prefix="tirelune-")
        self.ecran = self.bus = self.programme = self.application = None
        self.journal = os.path.join(self.captures, "messages.txt")
        try:
            self._demarrer(taille)
        except BaseException:
            self.fermer()
            raise

    def _demarrer(self, taille):
        self.ecran = Ecran(taille)
        environnement = self.ecran.environnement
        for variable in ("WAYLAND_DISPLAY", "AT_SPI_BUS_ADDRESS", "QT_QPA_PLATFORM", "SESSION_MANAGER"):
            environnement.pop(variable, None)
        # Nothing of the machine's user comes in, nothing goes out.
        environnement.update(HOME=self.maison, XDG_RUNTIME_DIR=self.maison, XDG_CONFIG_HOME=self.maison,
                             XDG_DATA_HOME=self.maison, XDG_CACHE_HOME=self.maison, LC_ALL="C.UTF-8",
                             QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", NO_AT_BRIDGE="0",
                             QT_PLUGIN_PATH=GREFFONS, QT_QPA_GENERIC_PLUGINS="tirelune-noms")
        lire, ecrire = os.pipe()
        self.bus = demarrer(["dbus-daemon", "--session", "--nofork", f"--print-address={ecrire}"],
                            pass_fds=[ecrire], env=environnement, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL)
        os.close(ecrire)
        environnement["DBUS_SESSION_BUS_ADDRESS"] = ligne_de(lire, "dbus-daemon")
        os.close(lire)
        os.environ.update(environnement)
        preparer_atspi()
        self.lancer_programme()

    def lancer_programme(self):
        """Start the program, for the first time or again, and wait until its first window has the keyboard."""
        with open(self.journal, "ab") as journal:
            self.programme = demarrer([*self.enveloppe, os.path.join(self.racine, "tirelune")], cwd=self.maison,
                                      env=self.ecran.environnement, stdout=journal, stderr=journal)
        self.application = self.jusqu_a(self._trouver_application, "the program shows itself to assistive tools")
        self.jusqu_a(lambda: any(f.etat("ACTIVE") for f in self.fenetres()), "the program has the keyboard")

    def _trouver_application(self):
        if self.programme.poll() is not None:
            raise Absent(f"the program ended at once, with code {self.programme.returncode}")
        for application in Element(Atspi.get_desktop(0)).enfants:
            if application.accessible.get_process_id() == self.programme.pid and application.enfants:
                return Element(application.accessible, Noms(self.programme.pid))
        return None

    def fermer(self):
        arreter(self.programme)
        if self.ecran:
            arreter(self.ecran.gestionnaire)
        arreter(self.bus)
        if self.ecran:
            arreter(self.ecran.serveur)
        shutil.rmtree(self.maison, ignore_errors=True)

    # --- Waiting -------------------------------------------------------------------------------------------

    def jusqu_a(self, condition, quoi, delai=DELAI):
        """Wait until condition() gives something, and return it."""
        fin = time.monotonic() + delai
        while True:
            try:
                resultat = condition()
                if resultat:
                    return resultat
            except GLib.Error:
                # A widget went away while it was looked at, or the program is busy.
                if self.programme.poll() is not None:
                    raise Absent(f"the program has ended, with code {self.programme.returncode}; "
                                 f"still not: {quoi}") from None
            if time.monotonic() > fin:
                raise Absent(f"after {delai:.0f} s, still not: {quoi}")
            time.sleep(PAS)

    def attendre_temps(self, secondes):
        """Let time pass: for rules about durations, never to wait for the program."""
        time.sleep(secondes)

    # --- Finding -------------------------------------------------------------------------------------------

    def fenetres(self):
        return [f for f in self.application.enfants if f.visible]

    def fenetre(self):
        """The active window; a list that pops up has none of its own, so then the last one opened."""
        fenetres = self.fenetres()
        for une in reversed(fenetres):
            if une.etat("ACTIVE"):
                return une
        return fenetres[-1] if fenetres else None

    def _premier(self, convient, partout):
        for racine in reversed(self.fenetres()) if partout else [self.fenetre()]:
            if racine is None:
                continue
            for element in [racine, *racine.descendants()]:
                if convient(element) and element.visible:
                    return element
        return None

    def chercher(self, nom, partout=False):
        """The shown widget of that name, or None. partout: in all windows, the last one opened first."""
        return self._premier(lambda element: element.identifiant == nom, partout)

    def chercher_valeur(self, valeur):
        """The shown item of a list that reads so, or None."""
        return self._premier(lambda element: element.role == "list item" and element.nom == valeur, True)

    def attendre(self, nom, delai=DELAI, partout=False):
        return self.jusqu_a(lambda: self.chercher(nom, partout), f"{nom!r} is shown", delai)

    def attendre_valeur(self, valeur, delai=DELAI):
        return self.jusqu_a(lambda: self.chercher_valeur(valeur), f"the value {valeur!r} is shown", delai)

    def attendre_disparition(self, nom, delai=DELAI):
        self.jusqu_a(lambda: self.chercher(nom) is None, f"{nom!r} has gone", delai)

    def attendre_fenetre(self, titre, delai=DELAI):
        """The active window of that name: a dialog by the start of its title, a screen of the program by its name."""
        def active():
            une = self.fenetre()
            if une is None or not une.etat("ACTIVE"):
                return None
            return une if une.identifiant == titre or une.nom.startswith(titre) else None
        return self.jusqu_a(active, f"the window {titre!r} is in front", delai)

    def attendre_titre(self, titre, delai=DELAI):
        """The window in front shows that title."""
        def lu():
            reponse = subprocess.run(["xdotool", "getactivewindow", "getwindowname"], stdout=subprocess.PIPE,
                                     stderr=subprocess.DEVNULL, timeout=60)
            return reponse.stdout.decode(errors="replace").rstrip("\n")
        self.jusqu_a(lambda: lu() == titre, f"the window in front is titled {titre!r}", delai)

    def texte(self, nom):
        return self.attendre(nom).texte

    def elements(self):
        """All that the active window is made of, by name: to be kept where much is to be looked at or clicked."""
        return {element.identifiant: element for element in self.fenetre().descendants()}

    def attendre_texte(self, nom, texte, delai=DELAI):
        """The widget shows that text, blanks at the ends apart."""
        self.jusqu_a(lambda: self.attendre(nom).texte.strip() == texte.strip(), f"{nom!r} shows {texte!r}", delai)

    def coche(self, nom):
        return self.attendre(nom).etat("CHECKED")

    # --- Mouse and keyboard --------------------------------------------------------------------------------

    def _xdotool(self, *arguments):
        subprocess.run(["xdotool", *map(str, arguments)], check=True, timeout=60)

    def _pret(self, element):
        """Its centre, once it can be used and has stopped moving."""
        precedente = []

        def immobile():
            place = element.place
            if not element.visible or not element.etat("SENSITIVE") or place[2] <= 0 or place[3] <= 0:
                precedente.clear()
                return None
            if precedente and precedente[-1] == place:
                return place
            precedente.append(place)
            return None
        x, y, l, h = self.jusqu_a(immobile, f"{element.identifiant or element.nom!r} can be clicked")
        return x + l // 2, y + h // 2

    def _cible(self, cible):
        return self.attendre(cible) if isinstance(cible, str) else cible

    def clic(self, cible, bouton=1, fois=1, partout=False):
        """A click on a widget, given or named."""
        element = self.attendre(cible, partout=partout) if isinstance(cible, str) else cible
        self.clic_en(*self._pret(element), bouton, fois)

    def double_clic(self, cible):
        self.clic(cible, fois=2)

    def clic_en(self, x, y, bouton=1, fois=1):
        # A hand that means a second click where it has just clicked takes its time; a quicker one is a double click.
        avant_x, avant_y, avant = self.dernier_clic
        if abs(x - avant_x) + abs(y - avant_y) <= DISTANCE_DOUBLE_CLIC:
            time.sleep(max(0, avant + DELAI_DOUBLE_CLIC - time.monotonic()))
        self.dernier_clic = x, y, time.monotonic()
        self._xdotool("mousemove", x, y, "click", "--repeat", fois, "--delay", 40, bouton)

    def ecarter_la_souris(self):
        """Into the last corner of the display, where it points at nothing that answers."""
        self._xdotool("mousemove", 9999, 9999)

    def glisser(self, depart, arrivee):
        """Drag from one place to another, in several moves as a hand does."""
        self._xdotool("mousemove", *depart, "mousedown", 1)
        for part in range(1, 11):
            self._xdotool("mousemove", *(round(d + (a - d) * part / 10) for d, a in zip(depart, arrivee)))
        self._xdotool("mouseup", 1)

    def caractere(self, nom, rang):
        """The place on the display of a character of a text box."""
        def place():
            contenu = self.attendre(nom).accessible.get_text_iface()
            r = Atspi.Text.get_character_extents(contenu, rang, Atspi.CoordType.SCREEN)
            return (r.x, r.y, r.width, r.height) if r.width > 0 and r.height > 0 else None
        x, y, l, h = self.jusqu_a(place, f"character {rang} of {nom!r} is shown")
        return x + l // 2, y + h // 2

    def caractere_en_vue(self, nom, rang):
        """The same, brought in sight by the wheel when it isn't."""
        gauche, haut, largeur, hauteur = self.attendre(nom).place
        while True:
            lieu = self.caractere(nom, rang)
            if haut < lieu[1] < haut + hauteur:
                return lieu
            self._xdotool("mousemove", gauche + largeur // 2, haut + hauteur // 2, "click", 4 if lieu[1] <= haut else 5)
            self.jusqu_a(lambda lieu=lieu: self.caractere(nom, rang) != lieu, f"the wheel moves {nom!r}")

    def clic_caractere(self, nom, rang, fois=1):
        self.clic_en(*self.caractere_en_vue(nom, rang), fois=fois)

    def selection(self, nom):
        """What is selected in a text box: from where, to where; both the same for a mere caret."""
        contenu = self.attendre(nom, partout=True).accessible.get_text_iface()
        if Atspi.Text.get_n_selections(contenu) > 0:
            bornes = Atspi.Text.get_selection(contenu, 0)
            return bornes.start_offset, bornes.end_offset
        ici = Atspi.Text.get_caret_offset(contenu)
        return ici, ici

    def attendre_selection(self, nom, debut, fin, delai=DELAI):
        self.jusqu_a(lambda: self.selection(nom) == (debut, fin), f"{debut} to {fin} is selected in {nom!r}", delai)

    def taper(self, texte):
        """Type into what has the focus."""
        self._xdotool("type", "--delay", 15, "--", texte)

    def taper_a_la_francaise(self, texte):
        """Type as a hand does on a French keyboard: ^ and ¨ by the dead key, before their letter."""
        for morceau in re.split(f"([{''.join(PAR_TOUCHE_MORTE)}])", texte):
            if morceau in PAR_TOUCHE_MORTE:
                self.touche(*PAR_TOUCHE_MORTE[morceau])
            elif morceau:
                self.taper(morceau)

    def touche(self, *noms, pas=30):
        """Press keys, so many milliseconds apart: "Return", "Escape", "ctrl+a", "alt+F4"..."""
        self._xdotool("key", "--delay", pas, *noms)

    def aller(self, nom):
        """Tab until the widget has the keyboard, which must not take more than once round the window."""
        self.attendre(nom)
        focus = self.application.noms.focus
        vus = []
        while focus() != nom:
            ici = focus()
            if ici and ici in vus[:-1]:
                raise Absent(f"no Tab leads to {nom!r}: {' '.join(vus)}")
            vus.append(ici)
            self.touche("Tab")
            self.jusqu_a(lambda ici=ici: focus() != ici, f"Tab leads on from {ici!r}")

    def presser(self, nom):
        """Go to a widget and press it, by keyboard alone."""
        self.aller(nom)
        self.touche("space")

    def remplir(self, nom, texte):
        """Click into a text box, replace what it holds, and see that it is there."""
        self.clic(nom)
        self.touche("ctrl+a")
        self.taper(texte)
        self.attendre_texte(nom, texte)

    def choisir(self, liste, valeur):
        """Open a drop-down list and click one of its values."""
        self.clic(liste)
        self.clic(self.attendre_valeur(valeur))
        self.attendre_texte_liste(liste, valeur)

    def attendre_texte_liste(self, liste, valeur, delai=DELAI):
        self.jusqu_a(lambda: self.valeur(liste) == valeur, f"the list {liste!r} stands at {valeur!r}", delai)

    def valeur(self, liste):
        """The value that a drop-down list shows."""
        return self.texte(liste)

    def attendre_menu(self, libelle, delai=DELAI):
        """The menu of that caption, without its blanks and underlined letter, once its window is in front."""
        def option():
            for racine in reversed(self.fenetres()):
                # A screen below another still shows its menus, but a click there would go to the one in front.
                if not racine.etat("ACTIVE") and "menu" not in racine.role:
                    continue
                for element in [racine, *racine.descendants()]:
                    if element.role in ("menu", "menu item", "check menu item", "radio menu item") \
                            and element.visible and sans_esperluette(element.nom) == libelle:
                        return element
            return None
        return self.jusqu_a(option, f"the menu {libelle!r} is shown", delai)

    def menu(self, *libelles):
        """Click through menus by their captions."""
        for libelle in libelles:
            self.clic(self.attendre_menu(libelle))

    # --- Boxes and dialogs ---------------------------------------------------------------------------------

    def attendre_boite(self, texte, delai=DELAI):
        """The message box that holds this text, once it is in front."""
        attendu = " ".join(texte.split())

        def boite():
            une = self.fenetre()
            if une is None or une.role not in ("alert", "dialog") or not une.etat("ACTIVE"):
                return None
            for element in une.descendants():
                if element.role == "label" and attendu in " ".join(element.nom.split()):
                    return une
            return None
        return self.jusqu_a(boite, f"a box says {texte!r}", delai)

    def boite(self, texte, reponse="OK"):
        """Wait for the message box that holds this text, and answer it."""
        boite = self.attendre_boite(texte)
        for element in boite.descendants():
            if element.role == "push button" and sans_esperluette(element.nom).lower() == reponse.lower():
                self.clic(element)
                self.jusqu_a(lambda: not boite.visible, f"the box {texte!r} has gone")
                return
        raise Absent(f"the box {texte!r} has no button {reponse!r}")

    def fichier(self, titre, chemin):
        """Wait for the file dialog of that title, type the path and confirm."""
        dialogue = self.attendre_fenetre(titre)

        def zone():
            for element in dialogue.descendants():
                if element.role == "text" and element.etat("FOCUSED"):
                    return element
            return None
        saisie = self.jusqu_a(zone, f"the dialog {titre!r} waits for a name")
        self.touche("ctrl+a")
        self.taper(chemin)
        self.jusqu_a(lambda: saisie.texte == chemin, f"the dialog {titre!r} shows {chemin!r}")
        self.touche("Return")
        self.jusqu_a(lambda: all(f.nom != titre for f in self.fenetres()), f"the dialog {titre!r} has gone")

    # --- What the session says -----------------------------------------------------------------------------

    def verifier(self, condition, quoi):
        """One check of the session."""
        if condition:
            self.reussis += 1
            print(f"ok: {self.nom}: {quoi}", flush=True)
        else:
            self.echoues += 1
            print(f"FAILED: {self.nom}: {quoi}", flush=True)
        return bool(condition)

    def verifier_egal(self, obtenu, attendu, quoi):
        return self.verifier(obtenu == attendu, quoi if obtenu == attendu
                             else f"{quoi}: {obtenu!r} instead of {attendu!r}")

    def capture(self, nom):
        """A picture of the whole display, numbered in the order of the session."""
        self.numero_capture += 1
        fichier = os.path.join(self.captures, f"{self.numero_capture:02}-{nom}.png")
        subprocess.run(["import", "-window", "root", fichier], check=True, timeout=60)
        return fichier

    def image(self):
        """The pixels of the whole display."""
        return subprocess.run(["import", "-window", "root", "-depth", "8", "rgb:-"], check=True,
                              stdout=subprocess.PIPE, timeout=60).stdout

    def partie(self, image, lieu):
        """The pixels of a part of such a picture."""
        return b"".join(image[3 * (y * self.taille[0] + lieu.x):3 * (y * self.taille[0] + lieu.x + lieu.width)]
                        for y in range(lieu.y, lieu.y + lieu.height))

    def suivre(self, nom, texte, fin):
        """Watch a text come up in a box, white before; where it stops another element shows. Its last word then."""
        contenu = self.attendre(nom).accessible.get_text_iface()
        fins = [(m[0], Atspi.Text.get_character_extents(contenu, m.end() - 1, Atspi.CoordType.SCREEN))
                for m in re.finditer(r"[\w-]+", texte)]
        image = self.image()
        while not self.chercher(fin):
            derniere, image = image, self.image()
        return next(mot for mot, lieu in reversed(fins) if self.partie(derniere, lieu).strip(b"\xff"))

    def couleurs(self, zone):
        """The colours of a widget, or of (left, top, width, height): counts of pixels by (red, green, blue)."""
        x, y, l, h = self.attendre(zone).place if isinstance(zone, str) else zone
        image = subprocess.run(["import", "-window", "root", "-crop", f"{l}x{h}+{x}+{y}", "-depth", "8", "rgb:-"],
                               check=True, stdout=subprocess.PIPE, timeout=60).stdout
        return collections.Counter(zip(image[0::3], image[1::3], image[2::3]))

    def attendre_fin(self, delai=DELAI):
        """The program ends; its exit code."""
        try:
            return self.programme.wait(delai)
        except subprocess.TimeoutExpired:
            raise Absent(f"after {delai:.0f} s, the program still runs") from None

    def lire_champs(self, nom):
        """The fields of one of the folder's field files, strictly."""
        with open(os.path.join(self.racine, nom), "rb") as fichier:
            return champs(fichier.read())

    def arbre(self, element=None, retrait=0):
        """The names and roles of all that is shown, for whoever looks into a failure."""
        lignes = []
        for enfant in (element.enfants if element else self.fenetres()):
            if enfant.visible:
                lignes.append(" " * retrait + f"{enfant.identifiant} {enfant.role} {enfant.nom!r} {enfant.place} {enfant.texte!r}")
                lignes += self.arbre(enfant, retrait + 2)
        return lignes


def mots_barres(chemin):
    """The words that are marked in a text, in its order, read without the program's help."""
    with open(chemin, encoding="cp1252", newline="") as fichier:
        rtf = re.sub(r"\\'(..)", lambda m: bytes.fromhex(m[1]).decode("cp1252"), fichier.read())
    return re.findall(r"\\strike (.*?)\\strike0", rtf)


def ecrire_rtf(chemin, texte):
    """One paragraph without marks."""
    with open(chemin, "w", encoding="ascii", newline="") as fichier:
        fichier.write("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fscript Comic Sans MS;}}\r\n\\pard\\f0\\fs28 "
                      + "".join(c if c.isascii() else f"\\'{c.encode('cp1252')[0]:02x}" for c in texte)
                      + "\\par\r\n}\r\n")


def champs(donnees):
    """Windows-1252, each value alone on its line between double quotes, lines ending in CR LF."""
    texte = donnees.decode("cp1252")
    if not re.fullmatch(r'("[^"\r\n]*"\r\n)*', texte):
        raise ValueError("not a field file")
    return [ligne[1:-1] for ligne in texte.split("\r\n")[:-1]]


def preparer_atspi():
    """Only once the session's bus is known: the library connects as soon as it is used."""
    global Atspi, Gio, GLib
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi as atspi, Gio as gio, GLib as glib
    Atspi, Gio, GLib = atspi, gio, glib
    Atspi.init()
    Atspi.set_timeout(3000, 15000)
    # Without an event loop nobody would refresh what the library keeps.
    Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)


def lancer(nom, seance, **options):
    """Play a session. The last line says what was counted; the exit code is 1 when anything failed."""
    reussis = echoues = 0
    try:
        p = Pilote(nom, **options)
    except Exception:
        traceback.print_exc()
        print("0 passed, 1 failed", flush=True)
        return 1
    try:
        try:
            seance(p)
        except Exception as echec:
            traceback.print_exc()
            p.verifier(False, f"the session goes to its end ({echec})")
            try:
                p.capture("echec")
                print("Shown at that moment:", *p.arbre(), sep="\n  ", flush=True)
            except Exception as autre:
                print(f"(no picture of it: {autre})", flush=True)
        reussis, echoues = p.reussis, p.echoues
    finally:
        p.fermer()
    with open(p.journal, encoding="utf-8", errors="replace") as journal:
        messages = journal.read()
    if messages:
        print("The program wrote:", messages, sep="\n", flush=True)
    print(f"Screenshots and files: {os.path.relpath(p.captures, SOURCES)}")
    print(f"{reussis} passed, {echoues} failed", flush=True)
    return 1 if echoues or not reussis else 0
