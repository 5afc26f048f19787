#pragma once

#include "OndelCore/platform/drives/SmartBlocks.h"

#include <QVariantMap>

#include <cstdint>
#include <optional>

namespace OndelCore::platform {

/// The D-Bus types of the replies of SmartGetAttributes.
inline const QString nvmeAttributesSignature = QStringLiteral("a{sv}");
inline const QString ataAttributesSignature = QStringLiteral("a(ysqiiixia{sv})");

/// A value of any integer type of D-Bus. Fails: absent for other types, negative and missing values.
std::optional<std::uint64_t> wholeNumber(const QVariant& value);

/// Decodes the properties of org.freedesktop.UDisks2.NVMe.Controller and the reply of its SmartGetAttributes,
/// if any. Threads: any. Fails: absent without a verdict; a figure of the wrong type is omitted.
std::optional<NvmeSmartReport> nvmeReport(const QVariantMap& properties, const QVariant& attributes);

/// The same for org.freedesktop.UDisks2.Drive.Ata.
std::optional<AtaSmartReport> ataReport(const QVariantMap& properties, const QVariant& attributes);

} // namespace OndelCore::platform
