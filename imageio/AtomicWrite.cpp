#include "imageio/AtomicWrite.h"

#include <QFileInfo>
#include <QSaveFile>

namespace orrery::imageio {

std::string writeFileAtomically(const std::string& path,
                                const std::function<std::string(QIODevice& file)>& write) {
    const QString name = QString::fromStdString(path);
    // QSaveFile would report a folder at the path only when renaming; say it plainly.
    if (QFileInfo(name).isDir())
        return "a folder is in the way";
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString().toStdString();
    if (const std::string failure = write(file); !failure.empty()) {
        file.cancelWriting();
        return failure;
    }
    // commit() syncs the temporary file to disk before it renames it over the target.
    if (!file.commit())
        return file.errorString().toStdString();
    return {};
}

std::string writeFileAtomically(const std::string& path, std::span<const std::uint8_t> bytes) {
    return writeFileAtomically(path, [bytes](QIODevice& file) -> std::string {
        const auto size = static_cast<qint64>(bytes.size());
        if (file.write(reinterpret_cast<const char*>(bytes.data()), size) != size)
            return file.errorString().toStdString();
        return {};
    });
}

} // namespace orrery::imageio
