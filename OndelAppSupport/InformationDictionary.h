#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

namespace OndelAppSupport {

/// The values that a build gives its program: version, secret of the report service, update feed, the maker's
/// hosts. They are set as CMake cache variables of the same names.
class InformationDictionary {
public:
    explicit InformationDictionary(QVariantMap values)
        : m_values(std::move(values)) {}

    /// This program's own. Threads: any.
    static const InformationDictionary& main();

    /// Fails: absent when the key is missing or holds no text.
    std::optional<QString> string(const QString& key) const;

private:
    QVariantMap m_values;
};

} // namespace OndelAppSupport
