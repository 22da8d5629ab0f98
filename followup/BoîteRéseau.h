// The box for a pupils' folder out of reach.
#pragma once

namespace tirelune {

class Application;

// True: try again; false: go on in the program's own folder.
bool RéessayerRéseau(Application& application);

} // namespace tirelune
