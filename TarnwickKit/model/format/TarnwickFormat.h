#pragma once

#include "TarnwickKit/model/format/Format.h"

namespace TarnwickKit::model {

/// What a host application needs to show figures as this one does.
class TarnwickFormat {
public:
    TarnwickFormat() = delete;

    static QString rate(double bytesPerSecond) { return Format::rate(bytesPerSecond); }
    static QString grouped(double value) { return Format::grouped(value); }
    static QString block(std::int64_t bytes) { return Format::block(bytes); }
};

} // namespace TarnwickKit::model
