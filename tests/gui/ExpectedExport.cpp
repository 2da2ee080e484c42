#include "ExpectedExport.h"

#include <QFile>

namespace tarnic::testing {

namespace {

std::vector<std::string> splitAtMarkers(const std::string& text) {
    const std::string marker = "\xE2\x9C\x94\xEF\xB8\x8E";
    std::vector<std::string> pieces;
    std::size_t from = 0;
    while (true) {
        const std::size_t at = text.find(marker, from);
        if (at == std::string::npos) {
            pieces.push_back(text.substr(from));
            return pieces;
        }
        pieces.push_back(text.substr(from, at - from));
        from = at + marker.size();
    }
}

} // namespace

std::string shippedTemplate() {
    QFile file(QStringLiteral(TARNIC_SOURCE_DIR "/resources/defaultkeys"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll().toStdString();
}

std::string expectedExport(const std::vector<AbilityRecord>& list,
                           const std::string& templateText) {
    std::string blocks;
    for (const AbilityRecord& record : list) {
        const std::string& edited = record.at("new edit");
        blocks += "\n";
        blocks += edited.empty() ? record.at("default") : edited;
    }
    const std::vector<std::string> pieces = splitAtMarkers(templateText);
    std::string text = pieces.front();
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        text += blocks + pieces[i];
    }
    return text;
}

std::string filledByHand(const AbilityRecord& record, const std::string& key) {
    const std::vector<std::string> pieces = splitAtMarkers(record.at("for edit"));
    std::string text = pieces.front();
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        text += key + pieces[i];
    }
    return text;
}

} // namespace tarnic::testing
