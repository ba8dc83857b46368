// SPDX-License-Identifier: MIT
//
//   vatro-random-contest SEED CONTACTS
//
// Writes a scenario: a contest of so many contacts over all bands and modes, with notes, corrections and number changes, as
// an operator's hands would come to it. What every box, status bar and log must show is worked out beside it.
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
