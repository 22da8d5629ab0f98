// Looks at a part of the display many thousand times a second and tells when it changed, so that what a person sees is
// timed from outside the program. Reads orders on standard input, one a line, answers each with one line.
//
//   zone X Y L H     the part to look at, in pixels
//   clic X Y         press and release there; answers with the changes that follow
//   touche SYMBOLE   the same for a key
//
// An answer is a list of "microseconds:fingerprint", from the event to each change of the part, until nothing has
// changed for 600 ms; "-" when nothing changed at all.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

#include <chrono>
#include <cstdint>
#include <cstring>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>

namespace {

using Horloge = std::chrono::steady_clock;
constexpr auto Calme = std::chrono::milliseconds{600};

class Sonde {
public:
    explicit Sonde(Display* affichage) : affichage_(affichage), racine_(DefaultRootWindow(affichage)) {}

    void Zone(int x, int y, unsigned largeur, unsigned hauteur)
    {
        x_ = x;
        y_ = y;
        largeur_ = largeur;
        hauteur_ = hauteur;
    }

    std::string Clic(int x, int y)
    {
        XTestFakeMotionEvent(affichage_, -1, x, y, CurrentTime);
        XSync(affichage_, False);
        std::this_thread::sleep_for(std::chrono::milliseconds{60}); // what hovering changes is not timed
        return Observer([this] {
            XTestFakeButtonEvent(affichage_, 1, True, CurrentTime);
            XTestFakeButtonEvent(affichage_, 1, False, CurrentTime);
        });
    }

    std::string Touche(const std::string& symbole)
    {
        const auto code = XKeysymToKeycode(affichage_, XStringToKeysym(symbole.c_str()));
        if (code == 0)
            return "?";
        return Observer([this, code] {
            XTestFakeKeyEvent(affichage_, code, True, CurrentTime);
            XTestFakeKeyEvent(affichage_, code, False, CurrentTime);
        });
    }

private:
    // FNV-1a over the pixels.
    std::uint32_t Empreinte()
    {
        auto* image = XGetImage(affichage_, racine_, x_, y_, largeur_, hauteur_, AllPlanes, ZPixmap);
        if (image == nullptr)
            return 0;
        std::uint64_t empreinte = 14695981039346656037ULL;
        const auto octets = static_cast<std::size_t>(image->bytes_per_line) * hauteur_;
        for (std::size_t i = 0; i + sizeof(std::uint64_t) <= octets; i += sizeof(std::uint64_t)) {
            std::uint64_t mot = 0;
            std::memcpy(&mot, image->data + i, sizeof mot);
            empreinte = (empreinte ^ mot) * 1099511628211ULL;
        }
        XDestroyImage(image);
        return static_cast<std::uint32_t>(empreinte ^ empreinte >> 32U);
    }

    template <class Geste>
    std::string Observer(Geste geste)
    {
        auto précédente = Empreinte();
        geste();
        XSync(affichage_, False);
        const auto départ = Horloge::now();
        auto dernier = départ;
        std::ostringstream changements;
        while (Horloge::now() - dernier < Calme) {
            const auto empreinte = Empreinte();
            if (empreinte == précédente)
                continue;
            précédente = empreinte;
            dernier = Horloge::now();
            const auto écoulé = std::chrono::duration_cast<std::chrono::microseconds>(dernier - départ).count();
            changements << écoulé << ':' << std::hex << empreinte << std::dec << ' ';
        }
        const auto réponse = changements.str();
        return réponse.empty() ? "-" : réponse;
    }

    Display* affichage_;
    Window racine_;
    int x_ = 0;
    int y_ = 0;
    unsigned largeur_ = 1;
    unsigned hauteur_ = 1;
};

} // namespace

int main()
{
    auto* affichage = XOpenDisplay(nullptr);
    if (affichage == nullptr) {
        std::cerr << "sonde : pas d'affichage\n";
        return 1;
    }
    Sonde sonde{affichage};
    for (std::string ligne; std::getline(std::cin, ligne);) {
        std::istringstream mots{ligne};
        std::string ordre;
        mots >> ordre;
        if (ordre == "zone") {
            int x = 0;
            int y = 0;
            unsigned largeur = 0;
            unsigned hauteur = 0;
            mots >> x >> y >> largeur >> hauteur;
            sonde.Zone(x, y, largeur, hauteur);
            std::cout << "ok" << std::endl;
        } else if (ordre == "clic") {
            int x = 0;
            int y = 0;
            mots >> x >> y;
            std::cout << sonde.Clic(x, y) << std::endl;
        } else if (ordre == "touche") {
            std::string symbole;
            mots >> symbole;
            std::cout << sonde.Touche(symbole) << std::endl;
        } else {
            std::cout << "?" << std::endl;
        }
    }
    XCloseDisplay(affichage);
}
