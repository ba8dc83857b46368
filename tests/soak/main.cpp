// SPDX-License-Identifier: MIT
//
//   vatro-soak-day SEED CONTACTS ROUNDS
//
// Writes a scenario: a field day of 24 hours with this many contacts, and this many rounds through every function per hour.
#include <iostream>
#include <string>

#include "day.h"

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: vatro-soak-day SEED CONTACTS ROUNDS\n";
        return 2;
    }
    soak::Day(static_cast<unsigned>(std::stoul(argv[1]))).Play(std::stoi(argv[2]), std::stoi(argv[3]));
}
