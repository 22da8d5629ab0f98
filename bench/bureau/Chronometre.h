// Times gestures on real widgets without a display, from the gesture until the window is painted anew.
#pragma once
#include "desktop/Fenetre.h"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>

namespace tirelune {

class Chronomètre {
public:
    explicit Chronomètre(Fenêtre& fenêtre) : fenêtre_(fenêtre) {}

    static void Titrer(const char* quoi, int combien)
    {
        std::printf("%d %s %22s %8s %8s\n", combien, quoi, "first", "worst", "goal");
    }
    // By the processor time, in ms; but: at most.
    void Mesurer(const char* nom, int fois, double but, const std::function<void()>& geste)
    {
        Comparer(nom, fois, but, geste, TempsProcesseur);
    }
    // By the clock, for what waits for the disk.
    void MesurerDisque(const char* nom, int fois, double but, const std::function<void()>& geste)
    {
        Comparer(nom, fois, but, geste, TempsÉcoulé);
    }
    [[nodiscard]] int Manqués() const { return manqués_; }

    // Of this thread, in ms.
    static double TempsProcesseur()
    {
        timespec temps{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &temps);
        return static_cast<double>(temps.tv_sec) * 1e3 + static_cast<double>(temps.tv_nsec) / 1e6;
    }
    void Noter(const char* nom, double premier, double pire, double but)
    {
        const bool manqué = pire > but;
        manqués_ += manqué ? 1 : 0;
        std::printf("%-22s %8.1f ms %8.1f %8.0f%s\n", nom, premier, pire, but, manqué ? "  MISSED" : "");
        std::fflush(stdout);
    }

private:
    static double TempsÉcoulé()
    {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }
    void Comparer(const char* nom, int fois, double but, const std::function<void()>& geste, double (*temps)())
    {
        double premier = 0;
        double pire = 0;
        for (int i = 0; i < fois; ++i) {
            const double départ = temps();
            geste();
            fenêtre_.Repeindre();
            const double durée = temps() - départ;
            premier = i == 0 ? durée : premier;
            pire = std::max(pire, durée);
            QApplication::processEvents(QEventLoop::AllEvents, 20); // what the window does by itself between two
        }
        Noter(nom, premier, pire, but);
    }

    Fenêtre& fenêtre_;
    int manqués_ = 0;
};

} // namespace tirelune
