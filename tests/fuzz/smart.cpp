#include "OndelCore/health/SmartPages.h"
#include "fuzz/Fuzz.h"

#include <algorithm>

using namespace OndelCore::health;

void fuzz::read(Bytes bytes) {
    SmartPage page{};
    std::copy_n(bytes.begin(), std::min(bytes.size(), page.size()), page.begin());
    OndelSMART nvme{};
    decodeNvmeHealth(page, nvme);
    OndelSMART ata{};
    decodeAtaAttributes(page, ata);
}
