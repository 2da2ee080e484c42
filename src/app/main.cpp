#include "app/Launch.h"

int main(int argc, char* argv[]) {
    return tarnic::launch(argc, argv);
}
