// The pupils' folder: its files are the list of pupils.
#pragma once

namespace tirelune {

class Application;
class ComboBox;
class FileListBox;

// Puts the list on CheminBilans, which is the program's own folder until another one was chosen. While the folder is
// out of reach the user is asked; whoever gives up goes on in the program's own folder.
void AtteindreDossierElèves(Application& application, FileListBox& liste);

// Fills the names from the files, extension cut off, and shows the first.
void ListerNoms(const FileListBox& liste, ComboBox& noms);

} // namespace tirelune
