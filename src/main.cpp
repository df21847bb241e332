#include "start/start.h"

int main(int argc, char** argv) { return vorbano::runOnDesk(argc, argv); }
