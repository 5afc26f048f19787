#include "Tarnwick/TarnwickApp.h"

int main(int argc, char** argv) { return TarnwickApp::run(argc, argv); }
