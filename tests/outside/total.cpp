// SPDX-License-Identifier: MIT
//
// Uses the rules of the contest without the program: counts the ten logs of a directory.
#include <iostream>

#include "disk_files.h"
#include "file_lines.h"
#include "papers/summary.h"

class Logs : public vatro::LogReader {
public:
    explicit Logs(std::string directory) : directory_(std::move(directory)) {}
    vatro::LineSource& Open(const vatro::LogId& log) override {
        files_.Open(1, directory_ + files_.Separator() + vatro::LogName(log.band, log.mode), vatro::FileMode::Input);
        return lines_;
    }
    void Close() override { files_.Close(1); }

private:
    std::string directory_;
    vatro::DiskFiles files_;
    vatro::FileLines lines_{files_, 1};
};

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    Logs logs(argv[1]);
    const vatro::Tally tally = vatro::TallyLogs(logs, vatro::Stations(), {});
    std::cout << tally.TotalQSOs << " contacts, " << tally.Total.Mults << " x " << tally.Total.Points << " = " << tally.Total.Score << '\n';
}
