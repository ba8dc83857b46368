// SPDX-License-Identifier: MIT
#include "replay/memory_front.h"
#include "replay/play.h"

int main(int argc, char** argv) {
    return vatro::PlayMain(argc, argv, [] { return std::make_unique<vatro::MemoryFront>(); });
}
