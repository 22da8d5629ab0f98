// Tells when a part of the display changed after a click or a key, so that what a person sees is timed from outside the
// program. The server says when something was painted, so that waiting takes no processor time from the program.
// Reads orders on standard input, one a line, answers each with one line.
//
//   zone X Y L H     the part to look at, in pixels
//   calme MS [MAX]   how long nothing must change for an answer to end, and how long one may last; 600 and 20000
//   clic X Y         press and release there; answers with the changes that follow
//   touche SYMBOLE   the same for a key
//
// An answer is a list of "microseconds:fingerprint", from the event to each change of the part; "-" when nothing
// changed at all.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XShm.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>

#include <poll.h>
#include <sys/ipc.h>
#include <sys/shm.h>

#include <chrono>
#include <cstdint>
#include <cstring>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

using Horloge = std::chrono::steady_clock;
using Millisecondes = std::chrono::milliseconds;

// A part of the display, copied into memory that the server shares.
class Vue {
public:
    Vue(Display* affichage, int x, int y, unsigned largeur, unsigned hauteur) : affichage_(affichage), x_(x), y_(y)
    {
        const int écran = DefaultScreen(affichage);
        image_ = XShmCreateImage(affichage, DefaultVisual(affichage, écran),
                                 static_cast<unsigned>(DefaultDepth(affichage, écran)), ZPixmap, nullptr, &segment_,
                                 largeur, hauteur);
        octets_ = static_cast<std::size_t>(image_->bytes_per_line) * hauteur;
        segment_.shmid = shmget(IPC_PRIVATE, octets_, IPC_CREAT | 0600);
        segment_.shmaddr = image_->data = static_cast<char*>(shmat(segment_.shmid, nullptr, 0));
        segment_.readOnly = False;
        XShmAttach(affichage, &segment_);
        XSync(affichage, False);
        shmctl(segment_.shmid, IPC_RMID, nullptr); // goes with the last of the two who use it
    }
    Vue(const Vue&) = delete;
    Vue& operator=(const Vue&) = delete;
    ~Vue()
    {
        XShmDetach(affichage_, &segment_);
        XSync(affichage_, False);
        image_->data = nullptr;
        XDestroyImage(image_);
        shmdt(segment_.shmaddr);
    }

    // FNV-1a over the pixels.
    std::uint32_t Empreinte()
    {
        XShmGetImage(affichage_, DefaultRootWindow(affichage_), image_, x_, y_, AllPlanes);
        std::uint64_t empreinte = 14695981039346656037ULL;
        for (std::size_t i = 0; i + sizeof(std::uint64_t) <= octets_; i += sizeof(std::uint64_t)) {
            std::uint64_t mot = 0;
            std::memcpy(&mot, segment_.shmaddr + i, sizeof mot);
            empreinte = (empreinte ^ mot) * 1099511628211ULL;
        }
        return static_cast<std::uint32_t>(empreinte ^ empreinte >> 32U);
    }

    [[nodiscard]] bool Touchée(const XRectangle& place) const
    {
        return place.x < x_ + image_->width && x_ < place.x + place.width && place.y < y_ + image_->height &&
               y_ < place.y + place.height;
    }

private:
    Display* affichage_;
    int x_;
    int y_;
    XImage* image_ = nullptr;
    XShmSegmentInfo segment_{};
    std::size_t octets_ = 0;
};

class Sonde {
public:
    explicit Sonde(Display* affichage) : affichage_(affichage), vue_(std::make_unique<Vue>(affichage, 0, 0, 1, 1))
    {
        int erreur = 0;
        if (XDamageQueryExtension(affichage, &peinture_, &erreur) == 0)
            throw std::runtime_error{"sonde : le serveur ne dit pas ce qui est peint"};
        XDamageCreate(affichage, DefaultRootWindow(affichage), XDamageReportRawRectangles);
        XSync(affichage, False);
    }

    void Calme(int calme, int maximum)
    {
        calme_ = Millisecondes{calme};
        maximum_ = Millisecondes{maximum};
    }

    std::string Zone(int x, int y, unsigned largeur, unsigned hauteur)
    {
        const int écran = DefaultScreen(affichage_);
        if (x < 0 || y < 0 || largeur == 0 || hauteur == 0 ||
            x + static_cast<int>(largeur) > DisplayWidth(affichage_, écran) ||
            y + static_cast<int>(hauteur) > DisplayHeight(affichage_, écran))
            return "?";
        vue_ = std::make_unique<Vue>(affichage_, x, y, largeur, hauteur);
        return "ok";
    }

    std::string Clic(int x, int y)
    {
        XTestFakeMotionEvent(affichage_, -1, x, y, CurrentTime);
        XSync(affichage_, False);
        std::this_thread::sleep_for(Millisecondes{60}); // what hovering changes is not timed
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
    // Whether something was painted in the part before that moment.
    bool AttendrePeinture(Horloge::time_point fin)
    {
        bool peint = false;
        for (;;) {
            while (XPending(affichage_) > 0) {
                XEvent événement;
                XNextEvent(affichage_, &événement);
                if (événement.type == peinture_ + XDamageNotify)
                    peint |= vue_->Touchée(reinterpret_cast<const XDamageNotifyEvent&>(événement).area);
            }
            const auto reste = std::chrono::ceil<Millisecondes>(fin - Horloge::now()).count();
            if (peint || reste <= 0)
                return peint;
            pollfd attente{ConnectionNumber(affichage_), POLLIN, 0};
            poll(&attente, 1, static_cast<int>(reste));
        }
    }

    template <class Geste>
    std::string Observer(Geste geste)
    {
        AttendrePeinture(Horloge::now()); // what came before is over
        auto précédente = vue_->Empreinte();
        const auto départ = Horloge::now();
        geste();
        XFlush(affichage_);
        auto dernier = départ;
        std::ostringstream changements;
        while (AttendrePeinture(std::min(dernier + calme_, départ + maximum_))) {
            const auto vu = Horloge::now();
            const auto empreinte = vue_->Empreinte();
            if (empreinte == précédente)
                continue;
            précédente = empreinte;
            dernier = vu;
            const auto écoulé = std::chrono::duration_cast<std::chrono::microseconds>(vu - départ).count();
            changements << écoulé << ':' << std::hex << empreinte << std::dec << ' ';
        }
        const auto réponse = changements.str();
        return réponse.empty() ? "-" : réponse;
    }

    Display* affichage_;
    std::unique_ptr<Vue> vue_;
    int peinture_ = 0; // the number of the extension's first event
    Millisecondes calme_{600};
    Millisecondes maximum_{20000};
};

void Répondre(Display* affichage)
{
    Sonde sonde{affichage};
    for (std::string ligne; std::getline(std::cin, ligne);) {
        std::istringstream mots{ligne};
        std::string ordre;
        mots >> ordre;
        int x = 0;
        int y = 0;
        if (ordre == "zone") {
            unsigned largeur = 0;
            unsigned hauteur = 0;
            mots >> x >> y >> largeur >> hauteur;
            std::cout << sonde.Zone(x, y, largeur, hauteur) << std::endl;
        } else if (ordre == "calme") {
            int maximum = 20000;
            mots >> x;
            if (mots >> y)
                maximum = y;
            sonde.Calme(x, maximum);
            std::cout << "ok" << std::endl;
        } else if (ordre == "clic") {
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
}

} // namespace

int main()
{
    auto* affichage = XOpenDisplay(nullptr);
    if (affichage == nullptr) {
        std::cerr << "sonde : pas d'affichage\n";
        return 1;
    }
    try {
        Répondre(affichage);
    } catch (const std::exception& échec) {
        std::cerr << échec.what() << '\n';
        return 1;
    }
    XCloseDisplay(affichage);
}
