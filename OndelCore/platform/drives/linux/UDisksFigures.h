#pragma once

#include "OndelCore/platform/drives/SmartBlocks.h"

#include <QVariantMap>

#include <cstdint>
#include <optional>

namespace OndelCore::platform {

/// The D-Bus types of what SmartGetAttributes answers.
inline const QString nvmeAttributesSignature = QStringLiteral("a{sv}");
inline const QString ataAttributesSignature = QStringLiteral("a(ysqiiixia{sv})");

/// A number that came as any of D-Bus's whole-number types. Fails: absent if it is of another type, negative
/// or missing.
std::optional<std::uint64_t> wholeNumber(const QVariant& value);

/// What the properties of org.freedesktop.UDisks2.NVMe.Controller and the answer of its SmartGetAttributes
/// (or none) say. Threads: any. Fails: absent without a verdict; a figure of the wrong type is left out.
std::optional<NvmeSmartReport> nvmeReport(const QVariantMap& properties, const QVariant& attributes);

/// The same for org.freedesktop.UDisks2.Drive.Ata.
std::optional<AtaSmartReport> ataReport(const QVariantMap& properties, const QVariant& attributes);

} // namespace OndelCore::platform
