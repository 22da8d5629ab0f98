// A value that tells its owner when it changes.
#pragma once
#include "core/Texte.h"

#include <concepts>
#include <utility>

namespace tirelune {

// The owner of properties: whatever must know that something to be drawn has changed.
class Observable {
public:
    virtual void Changer() = 0;

protected:
    ~Observable() = default;
};

template <class T>
class Propriété;

template <class U>
inline constexpr bool EstPropriété = false;
template <class T>
inline constexpr bool EstPropriété<Propriété<T>> = true;

template <class T>
class Propriété {
public:
    Propriété(Observable& maître, T initiale) : maître_(maître), valeur_(std::move(initiale)) {}
    Propriété(const Propriété&) = delete;

    operator const T&() const { return valeur_; }
    operator VueTexte() const requires std::same_as<T, Texte> { return valeur_; }
    const T& operator()() const { return valeur_; }
    const T* operator->() const { return &valeur_; }

    Propriété& operator=(T nouvelle)
    {
        if (nouvelle == valeur_)
            return *this;
        valeur_ = std::move(nouvelle);
        maître_.Changer();
        return *this;
    }
    Propriété& operator=(const Propriété& autre) { return *this = autre.valeur_; }
    // For whoever draws the owner and reports back: the value changes, and nobody needs to be told.
    void Noter(T nouvelle) { valeur_ = std::move(nouvelle); }

    friend bool operator==(const Propriété& a, const Propriété& b) { return a.valeur_ == b.valeur_; }
    template <class U>
    requires(!EstPropriété<U>) friend bool operator==(const Propriété& a, const U& b) { return a.valeur_ == b; }

private:
    Observable& maître_;
    T valeur_;
};

} // namespace tirelune
