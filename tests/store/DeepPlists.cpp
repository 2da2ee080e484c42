#include "store/DeepPlists.h"
#include "store/StoreFolder.h"

#include <QList>

#include <cstdint>

namespace {

void appendBigEndian(QByteArray& bytes, std::uint64_t value, int size) {
    for (int shift = (size - 1) * 8; shift >= 0; shift -= 8) {
        bytes.append(static_cast<char>((value >> shift) & 0xFF));
    }
}

// Object 0 is the top-level dictionary {"mainDic": object 2}, object 1 the key, and objects 2
// onwards are arrays, each given as the list of objects it refers to. References and offsets
// take four bytes.
QByteArray binaryList(const QList<QList<std::uint32_t>>& arrays) {
    QByteArray bytes("bplist00");
    QList<std::uint64_t> offsets;
    offsets.append(static_cast<std::uint64_t>(bytes.size()));
    bytes.append(static_cast<char>(0xD1)); // dictionary of one entry
    appendBigEndian(bytes, 1, 4);
    appendBigEndian(bytes, 2, 4);
    offsets.append(static_cast<std::uint64_t>(bytes.size()));
    bytes.append(static_cast<char>(0x57)); // ASCII string of 7
    bytes.append("mainDic");
    for (const QList<std::uint32_t>& refs : arrays) {
        offsets.append(static_cast<std::uint64_t>(bytes.size()));
        if (refs.size() < 15) {
            bytes.append(static_cast<char>(0xA0 | refs.size()));
        } else {
            bytes.append(static_cast<char>(0xAF));
            bytes.append(static_cast<char>(0x12)); // a four-byte count follows
            appendBigEndian(bytes, static_cast<std::uint64_t>(refs.size()), 4);
        }
        for (const std::uint32_t ref : refs) {
            appendBigEndian(bytes, ref, 4);
        }
    }
    const auto table = static_cast<std::uint64_t>(bytes.size());
    for (const std::uint64_t offset : offsets) {
        appendBigEndian(bytes, offset, 4);
    }
    bytes.append(QByteArray(6, '\0'));
    bytes.append(static_cast<char>(4)); // offset size
    bytes.append(static_cast<char>(4)); // reference size
    appendBigEndian(bytes, static_cast<std::uint64_t>(offsets.size()), 8);
    appendBigEndian(bytes, 0, 8); // top object
    appendBigEndian(bytes, table, 8);
    return bytes;
}

} // namespace

QByteArray xmlNestedArrays(int levels) {
    QByteArray body("<dict><key>mainDic</key>");
    body.append(QByteArrayLiteral("<array>").repeated(levels));
    body.append(QByteArrayLiteral("</array>").repeated(levels));
    body.append("</dict>");
    return plistXml(body);
}

QByteArray binaryNestedArrays(int levels) {
    QList<QList<std::uint32_t>> arrays;
    for (int level = 0; level < levels; ++level) {
        arrays.append(level + 1 < levels
                          ? QList<std::uint32_t>{static_cast<std::uint32_t>(level + 3)}
                          : QList<std::uint32_t>{});
    }
    return binaryList(arrays);
}

QByteArray binarySharedArrays(int levels, int width) {
    QList<QList<std::uint32_t>> arrays;
    for (int level = 0; level < levels; ++level) {
        arrays.append(QList<std::uint32_t>(width, static_cast<std::uint32_t>(level + 3)));
    }
    arrays.append(QList<std::uint32_t>{});
    return binaryList(arrays);
}
