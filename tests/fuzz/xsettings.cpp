#include "OndelDesktop/linux/XSettings.h"

#include "fuzz/Fuzz.h"

void fuzz::read(Bytes bytes) {
    const auto value = OndelDesktop::textSetting(bytes, "Net/ThemeName");
    require(!value || bytes.find(*value) != Bytes::npos);
}
