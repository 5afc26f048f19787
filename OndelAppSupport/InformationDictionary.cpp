#include "OndelAppSupport/InformationDictionary.h"

#include "InformationDictionaryValues.h"

namespace OndelAppSupport {

const InformationDictionary& InformationDictionary::main() {
    static const InformationDictionary dictionary([] {
        QVariantMap values;
        for (const auto& [key, value] : informationDictionaryValues)
            values.insert(QString::fromUtf8(key), QString::fromUtf8(value));
        return values;
    }());
    return dictionary;
}

std::optional<QString> InformationDictionary::string(const QString& key) const {
    const QVariant value = m_values.value(key);
    return value.metaType() == QMetaType::fromType<QString>() ? std::optional(value.toString())
                                                              : std::nullopt;
}

} // namespace OndelAppSupport
