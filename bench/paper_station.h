// SPDX-License-Identifier: MIT
//
// The program with ten logs of 2,000 contacts without errors, for the papers that its menu makes of them. The papers' files stay in
// memory, so waiting for the disk is not measured, and the printer takes no time.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "disk_files.h"
#include "entry/frmMain.h"
#include "frame/log_file.h"
#include "page.h"
#include "started_program.h"

namespace vatro::bench {

/// In each of the ten logs.
inline constexpr std::size_t kPaperContacts = 2000;

class PaperStation {
public:
    PaperStation();

    static std::string Path(const LogId& log) { return LogPath(log.band, log.mode); }
    /// Runs the command of a menu entry.
    static void Choose(MenuItem& item);

    /// The lines of the file written last.
    std::size_t Lines() const { return files_.lines; }
    /// The characters printed so far.
    std::size_t Printed() const { return noPrinter_.printed; }

private:
    /// Reads from the disk. Of the file being written it keeps only the last piece in memory.
    class ReadingFiles : public DiskFiles {
    public:
        void Open(int number, std::string_view path, FileMode mode) override;
        void PrintLine(int number, std::string_view text) override;
        std::size_t lines = 0;

    private:
        std::string piece_;
    };

    /// A printer that keeps nothing and on which everything fits.
    class NoPrinter : public PageDevice {
    public:
        double Width() const override { return 595; }
        double Height() const override { return 842; }
        double TextWidth(std::string_view text, const Font& font) const override {
            return 0.6 * font.size * static_cast<double>(text.size());
        }
        double TextHeight(const Font& font) const override { return 1.2 * font.size; }
        void BeginJob() override {}
        void Place(double, double, const Font&, std::string_view text) override { printed += text.size(); }
        void NextPage() override {}
        void EndJob() override {}
        std::size_t printed = 0;
    };

    Program program_;
    ReadingFiles files_;
    NoPrinter noPrinter_;
    PageSurface printer_;
};

}  // namespace vatro::bench
