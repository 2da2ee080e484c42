// libFuzzer target: any bytes as the site's reply to the start-up version check, which must
// answer yes or no for every reply without a fault.
#include "shell/VersionSupport.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // libFuzzer's own buffer, exactly as long as the input and without a terminating NUL (which a
    // QByteArray copy would add), so that AddressSanitizer sees a read past the end.
    const QByteArray reply =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    (void)tarnic::isVersionSupportDictionary(reply);
    return 0;
}
