// SPDX-License-Identifier: MIT
//
//   vatro-random-contest SEED CONTACTS
//
// Writes a scenario: a contest of this many contacts over all bands and modes, with the notes, corrections and number changes
// that an operator would make. The expected content of every box, status bar and log is worked out independently of the
// program.
#include <iostream>
#include <string>

#include "contest.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: vatro-random-contest SEED CONTACTS\n";
        return 2;
    }
    contest::Contest(static_cast<unsigned>(std::stoul(argv[1]))).Play(std::stoi(argv[2]));
}
