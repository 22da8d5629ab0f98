// Whole files as bytes, for the command-line tools.
#pragma once
#include "core/Texte.h"

#include <fstream>
#include <iterator>
#include <optional>
#include <string>

inline std::optional<std::string> LireOctets(const Chemin& fichier)
{
    std::ifstream flux(fichier, std::ios::binary);
    if (!flux)
        return std::nullopt;
    std::string octets{std::istreambuf_iterator<char>(flux), {}};
    if (flux.bad())
        return std::nullopt;
    return octets;
}

inline bool EcrireOctets(const Chemin& fichier, const std::string& octets)
{
    std::ofstream flux(fichier, std::ios::binary | std::ios::trunc);
    flux.write(octets.data(), static_cast<std::streamsize>(octets.size()));
    flux.close();
    return flux.good();
}
