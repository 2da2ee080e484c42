#pragma once

// The kept files of tests/data and the shipped template, for the tests that import against the
// real catalogue.
#include "core/editor/ExportText.h"
#include "core/record/AbilityRecord.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace tarnic::test {

inline std::string bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    EXPECT_TRUE(in.good()) << path;
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// A file of tests/data, by its path there.
inline std::string testData(const std::string& name) {
    return bytesOf(TARNIC_SOURCE_DIR "/tests/data/" + name);
}

inline const std::string& shippedTemplate() {
    static const std::string text = bytesOf(TARNIC_SOURCE_DIR "/resources/defaultkeys");
    return text;
}

// What "Export CustomKeys…" writes for `list`.
inline std::string exported(const std::vector<AbilityRecord>& list) {
    return exportText(list, shippedTemplate());
}

} // namespace tarnic::test
