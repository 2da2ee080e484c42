#include "core/catalogue/Catalogue.h"

#include <cstdio>

// Until the main window exists this only proves that the build works: it reports the size of
// the built-in ability catalogue.
int main() {
    std::printf("Tarnic Pro: %zu abilities in the catalogue\n", tarnic::all_data().size());
    return 0;
}
