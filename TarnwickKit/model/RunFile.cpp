#include "TarnwickKit/model/RunFile.h"

#include "TarnwickKit/model/RunRecordJson.h"

#include <fstream>

namespace TarnwickKit::model {

std::optional<QByteArray> readRunFile(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return std::nullopt;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size > maxRunFileBytes)
        return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    QByteArray content(static_cast<qsizetype>(size), Qt::Uninitialized);
    file.read(content.data(), content.size());
    if (!file || file.peek() != std::ifstream::traits_type::eof())
        return std::nullopt;
    return content;
}

} // namespace TarnwickKit::model
