#include "instance/UnixSocketAddress.h"

#include <QFile>

#include <cstring>
#include <sys/socket.h>

namespace tarnic {

std::optional<sockaddr_un> unixSocketAddress(const QString& path) {
    const QByteArray encoded = QFile::encodeName(path);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (encoded.isEmpty() || encoded.contains('\0') ||
        static_cast<std::size_t>(encoded.size()) >= sizeof(address.sun_path)) {
        return std::nullopt;
    }
    std::memcpy(address.sun_path, encoded.constData(), static_cast<std::size_t>(encoded.size()));
    return address;
}

QString systemErrorText(int error) {
    return QString::fromLocal8Bit(std::strerror(error));
}

} // namespace tarnic
