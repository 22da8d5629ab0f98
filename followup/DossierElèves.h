// The pupils' folder: its files are the list of pupils.
#pragma once
#include "core/Texte.h"

#include <vector>

namespace tirelune {

class Application;
class ComboBox;
class FileListBox;

// Puts the list on CheminBilans, which is the program's own folder until another one was chosen. While the folder is
// out of reach the user is asked; whoever gives up goes on in the program's own folder.
void AtteindreDossierElèves(Application& application, FileListBox& liste);

// Fills the names from the files, extension cut off, and shows the first.
void ListerNoms(const FileListBox& liste, ComboBox& noms);

// Path of the file of the name that is shown: the one that it was listed from, in a list of that folder.
Texte FichierMontré(const FileListBox& liste, const ComboBox& noms, VueTexte dossier);

// What a teacher should know of a folder: the files that were set aside in it, and those that bear one name. Empty when
// there are none.
Texte NoteSurLeDossier(VueTexte dossier);

} // namespace tirelune
