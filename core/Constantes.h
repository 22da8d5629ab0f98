// The public state of the whole program: created empty at the start, alive until the end.
#pragma once
#include "core/Texte.h"

#include <cstddef>
#include <cstdint>

namespace tirelune {

struct Constantes {
    Texte CheminAppli;         // the program's own folder, no trailing separator
    Texte CheminRéseau;        // the folder named in Chemin.txt, empty if none
    Texte CheminBilans;        // where the pupils' files lie
    Texte NomElève;            // the signed-in pupil, stem of the .bil file
    Texte CheminTexteElève;    // folder of the pupil's text, with its trailing separator
    Texte NomFichierQuestions; // full path of the current questionnaire
    bool QuestionnaireExiste = false;
    double TempsDébut = 0; // seconds since midnight when the reading started
    double SourisX = 0;    // where a drag of the questions began, twips inside their frame
    double SourisY = 0;
    std::uint8_t GroupeCourbes = 0; // 1 to 5
    bool CodeValide = false;

    Texte NomFichierTexte;   // full path of the text in the editor
    Texte TitreFichierTexte; // its file title, no extension
    Texte CheminTextes;      // where the editor's file dialogs start
    bool TexteModifié = false;
    bool ModeRechercher = false;
    std::size_t PositionRecherche = 0; // where the next search starts: texts are longer than 16 bits count
    bool ListeModifiée = false;        // a list of the lexicon's editor follows what is typed: no cascade
    bool MotExistant = false;          // the list of the text's dictionary moves that of the general one
    std::uint8_t IndexListe = 0;       // of the word that is being renamed

    Texte LettresEtSignes;
    Texte LettresEtChiffres;
    Texte LettresSeules;

    int IndexMotDico = 0;        // of the next word of the text's dictionary, however many it has
    bool MotDicoFini = false;    // its words have all been shown once
    bool ChoixProgramme = false; // the program itself is setting a list of answers: that's no pick

    std::uint8_t NoteSérie = 0;        // index of the last word of the series
    long PositionPoursuite = 0;        // place of the character being revealed, from 0
    std::int16_t VitessePoursuite = 0; // ms between two ordinary letters
    bool CorrectionEnCours = false;    // a double click has just been answered
};

} // namespace tirelune
