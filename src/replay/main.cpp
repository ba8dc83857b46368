// SPDX-License-Identifier: MIT
#include "command_line.h"
#include "memory_front.h"
#include "play.h"

int main(int argc, char** argv) {
    return vatro::PlayMain(vatro::CommandLine(argc, argv), [] { return std::make_unique<vatro::MemoryFront>(); });
}
