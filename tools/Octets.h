// Whole files as bytes, for the command-line tools.
#pragma once
#include "core/Texte.h"

#include <fstream>
#include <optional>
#include <string>

namespace tirelune {

inline std::optional<std::string> LireOctets(const Chemin& fichier)
{
    std::ifstream flux(fichier, std::ios::binary | std::ios::ate);
    const auto taille = flux ? static_cast<std::streamoff>(flux.tellg()) : -1;
    if (taille < 0)
        return std::nullopt;
    std::string octets(static_cast<std::size_t>(taille), '\0');
    flux.seekg(0).read(octets.data(), taille);
    if (flux.gcount() != taille)
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

} // namespace tirelune
