#include "OndelCore/platform/drives/Circumstances.h"

namespace OndelCore::platform {

std::size_t Circumstances::hash() const {
    return hashFields(kernel, fileSystemType, reach, isServedByProgram, compresses, copiesOnWrite,
                      checksumsData, journalsData, isEncrypted, allowsDirectIo, disks, isFileOnDisk,
                      isCachedFileOnDisk, isVirtualDisk, isRotational, hasVolatileWriteCache, misalignment,
                      link, isOnBattery, hasPowerSaveGovernor, memoryBytes, capacityBytes, freeBytes,
                      maxCelsius, criticalCelsius, samples);
}

} // namespace OndelCore::platform
