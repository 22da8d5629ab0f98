// The table of screens: the one unit that knows them all.
#pragma once

namespace tirelune {

class Application;

// Fills the table by which screens open those that stand above them.
void RemplirTable(Application& application);

} // namespace tirelune
