#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

namespace OndelAppSupport {

/// Values that are set when the program is built: version, secret of the report service, update feed, the
/// maker's hosts. They are CMake cache variables of the same names.
class InformationDictionary {
public:
    explicit InformationDictionary(QVariantMap values)
        : m_values(std::move(values)) {}

    /// This program's own. Threads: any.
    static const InformationDictionary& main();

    /// Fails: absent when the key is missing or its value is not a string.
    std::optional<QString> string(const QString& key) const;

private:
    QVariantMap m_values;
};

} // namespace OndelAppSupport
