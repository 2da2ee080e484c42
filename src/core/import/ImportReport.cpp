#include "core/import/ImportReport.h"

namespace tarnic {

namespace {

std::string counted(std::size_t n, const char* one, const char* many) {
    return std::to_string(n) + " " + (n == 1 ? one : many);
}

void addSentence(std::string& text, const std::string& sentence) {
    if (!text.empty()) {
        text += ' ';
    }
    text += sentence;
}

} // namespace

std::string importSummary(const ImportReport& report) {
    std::string text = counted(report.read, "hotkey", "hotkeys") + " read, " +
                       std::to_string(report.changed) + " changed";
    if (report.unknownSections > 0) {
        text += "; " + counted(report.unknownSections, "section", "sections") + " of the file " +
                (report.unknownSections == 1 ? "is" : "are") + " not in the catalogue and " +
                (report.unknownSections == 1 ? "was" : "were") + " left out";
    }
    return text + ".";
}

std::string importDetails(const ImportReport& report) {
    std::string text;
    if (report.notInFile > 0) {
        addSentence(text, counted(report.notInFile, "ability has", "abilities have") +
                              " no key in the file and kept what " +
                              (report.notInFile == 1 ? "it" : "they") + " had.");
    }
    if (report.partial > 0) {
        addSentence(text, counted(report.partial, "ability is", "abilities are") +
                              " only partly in the file; the key found was given to all of " +
                              (report.partial == 1 ? "its" : "their") + " places.");
    }
    if (report.mixed > 0) {
        addSentence(text, counted(report.mixed, "ability has", "abilities have") +
                              " different keys at " + (report.mixed == 1 ? "its" : "their") +
                              " places in the file; the first was taken.");
    }
    return text;
}

} // namespace tarnic
