// SPDX-License-Identifier: MIT
#include "disk/command_line.h"
#include "replay/memory_front.h"
#include "replay/play.h"

int main(int argc, char** argv) {
    return vatro::PlayMain(vatro::CommandLine(argc, argv), [] { return std::make_unique<vatro::MemoryFront>(); });
}
