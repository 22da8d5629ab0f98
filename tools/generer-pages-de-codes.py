#!/usr/bin/python3
"""Writes core/PagesDeCodes.cpp: the upper halves of the single-byte code pages, from Python's own codecs."""

import codecs
import pathlib

PAGES = {
    437: "cp437", 720: "cp720", 737: "cp737", 775: "cp775", 850: "cp850", 852: "cp852", 855: "cp855", 857: "cp857",
    858: "cp858", 860: "cp860", 861: "cp861", 862: "cp862", 863: "cp863", 864: "cp864", 865: "cp865", 866: "cp866",
    869: "cp869", 874: "cp874", 1250: "cp1250", 1251: "cp1251", 1252: "cp1252", 1253: "cp1253", 1254: "cp1254",
    1255: "cp1255", 1256: "cp1256", 1257: "cp1257", 1258: "cp1258", 10000: "mac_roman", 10006: "mac_greek",
    10007: "mac_cyrillic", 10029: "mac_latin2", 10079: "mac_iceland", 10081: "mac_turkish", 20866: "koi8_r",
    21866: "koi8_u", 28591: "iso8859_1", 28592: "iso8859_2", 28593: "iso8859_3", 28594: "iso8859_4",
    28595: "iso8859_5", 28596: "iso8859_6", 28597: "iso8859_7", 28598: "iso8859_8", 28599: "iso8859_9",
    28603: "iso8859_13", 28605: "iso8859_15",
}


def caractère(page, octet):
    try:
        return ord(codecs.decode(bytes([octet]), PAGES[page]))
    except UnicodeDecodeError:
        # Windows pages keep an unassigned control byte as it is.
        return octet if octet < 0xA0 and (page == 874 or 1250 <= page <= 1258) else 0xFFFD


def main():
    lignes = [
        "// Written by tools/generer-pages-de-codes.py.",
        '#include "core/PagesDeCodes.h"',
        "",
        "#include <algorithm>",
        "",
        "namespace {",
        "",
        "struct Entrée {",
        "    int numéro;",
        "    MoitiéHaute caractères;",
        "};",
        "",
        "// clang-format off",
        f"constexpr std::array<Entrée, {len(PAGES)}> Pages{{{{",
    ]
    for page in sorted(PAGES):
        lignes.append(f"    {{{page}, {{")
        for début in range(0x80, 0x100, 16):
            lignes.append("        " + ", ".join(f"0x{caractère(page, o):04X}" for o in range(début, début + 16)) + ",")
        lignes.append("    }},")
    lignes += [
        "}};",
        "// clang-format on",
        "",
        "} // namespace",
        "",
        "const MoitiéHaute* TrouverPageDeCodes(int numéro)",
        "{",
        "    const auto page = std::lower_bound(Pages.begin(), Pages.end(), numéro,",
        "                                       [](const Entrée& entrée, int cherché) { return entrée.numéro < cherché; });",
        "    return page != Pages.end() && page->numéro == numéro ? &page->caractères : nullptr;",
        "}",
    ]
    cible = pathlib.Path(__file__).parent.parent / "core" / "PagesDeCodes.cpp"
    cible.write_text("\n".join(lignes) + "\n", encoding="utf-8")


main()
