// The library is driven by virtual-table position, so the position of each
// operation is pinned here. A virtual member-function pointer holds one plus
// the byte offset of its table entry.
#include <cstdint>
#include <cstring>

#include <gtest/gtest.h>

#include "api/HbaMgmtInterfaces.h"
#include "api/HbaMgmtLoader.h"

namespace {

template <typename MemberFunction>
long slotOf(MemberFunction function)
{
    struct Representation {
        uintptr_t pointer;
        ptrdiff_t adjustment;
    } representation;
    static_assert(sizeof(function) == sizeof(representation));
    std::memcpy(&representation, &function, sizeof representation);
    if ((representation.pointer & 1) == 0)
        return -1; // not virtual
    return static_cast<long>((representation.pointer - 1) / sizeof(void*));
}

} // namespace

TEST(InterfaceSlots, HbaMgmtApi)
{
    EXPECT_EQ(slotOf(&HbaMgmtApi::uninitialize), 6);
    EXPECT_EQ(slotOf(&HbaMgmtApi::initialize), 7);
    EXPECT_EQ(slotOf(&HbaMgmtApi::getLibraryVersionInfo), 10);
    EXPECT_EQ(slotOf(&HbaMgmtApi::getRemoteAgentVersion), 12);
    EXPECT_EQ(slotOf(&HbaMgmtApi::registerMsgHandler), 13);
    EXPECT_EQ(slotOf(&HbaMgmtApi::unregisterMsgHandler), 14);
    EXPECT_EQ(slotOf(&HbaMgmtApi::beginClientSession), 15);
    EXPECT_EQ(slotOf(&HbaMgmtApi::endClientSession), 16);
    EXPECT_EQ(slotOf(&HbaMgmtApi::returnCodeToText), 17);
    EXPECT_EQ(slotOf(&HbaMgmtApi::isFailure), 19);
    EXPECT_EQ(slotOf(&HbaMgmtApi::textToIpAddress), 23);
    EXPECT_EQ(slotOf(&HbaMgmtApi::testAgentConnection), 28);
    EXPECT_EQ(slotOf(&HbaMgmtApi::saveDemonstrationFile), 29);
    EXPECT_EQ(slotOf(&HbaMgmtApi::loadDemonstrationFile), 30);
    EXPECT_EQ(slotOf(&HbaMgmtApi::getAdapters), 33);
    EXPECT_EQ(slotOf(&HbaMgmtApi::clearAdapters), 34);
    EXPECT_EQ(slotOf(&HbaMgmtApi::getClusters), 35);
    EXPECT_EQ(slotOf(&HbaMgmtApi::clearClusters), 36);
    EXPECT_EQ(slotOf(&HbaMgmtApi::getAdapterGroupLuns), 37);
    EXPECT_EQ(slotOf(&HbaMgmtApi::clearAdapterGroupLuns), 38);
    EXPECT_EQ(slotOf(&HbaMgmtApi::scanAdapterGroupLuns), 39);
    EXPECT_EQ(slotOf(&HbaMgmtApi::checkAdapterPath), 40);
    EXPECT_EQ(slotOf(&HbaMgmtApi::scanAdapters), 41);
    EXPECT_EQ(slotOf(&HbaMgmtApi::scanFromAdapter), 42);
    EXPECT_EQ(slotOf(&HbaMgmtApi::registerAenCallback), 43);
    EXPECT_EQ(slotOf(&HbaMgmtApi::unregisterAenCallback), 44);
    EXPECT_EQ(slotOf(&HbaMgmtApi::pollAenEvents), 45);
}

TEST(InterfaceSlots, AdapterAndClusterCollections)
{
    EXPECT_EQ(slotOf(&HIsaAdapterCollection::contains), 8);
    EXPECT_EQ(slotOf(&HIsaAdapterCollection::find), 9);
    EXPECT_EQ(slotOf(&HIsaAdapterCollection::findBySymbolicName), 12);
    EXPECT_EQ(slotOf(&HClusterCollection::contains), 8);
    EXPECT_EQ(slotOf(&HClusterCollection::find), 9);
}

TEST(InterfaceSlots, Cluster)
{
    EXPECT_EQ(slotOf(&HCluster::getClusterId), 5);
    EXPECT_EQ(slotOf(&HCluster::getClusterInfo), 6);
    EXPECT_EQ(slotOf(&HCluster::getMemberPaths), 7);
    EXPECT_EQ(slotOf(&HCluster::getPrimaryPath), 10);
    EXPECT_EQ(slotOf(&HCluster::isPrimaryValid), 11);
    EXPECT_EQ(slotOf(&HCluster::isSecondaryValid), 12);
}

TEST(InterfaceSlots, AdapterCollectionsAndMaintenance)
{
    EXPECT_EQ(slotOf(&HIsaAdapter::getAdapterPath), 5);
    EXPECT_EQ(slotOf(&HIsaAdapter::getCachedAdapterInfo), 6);
    EXPECT_EQ(slotOf(&HIsaAdapter::getClusterId), 7);
    EXPECT_EQ(slotOf(&HIsaAdapter::getInitiators), 8);
    EXPECT_EQ(slotOf(&HIsaAdapter::clearInitiators), 9);
    EXPECT_EQ(slotOf(&HIsaAdapter::getTargets), 10);
    EXPECT_EQ(slotOf(&HIsaAdapter::setTargetMaxOutstandingIo), 11);
    EXPECT_EQ(slotOf(&HIsaAdapter::clearTargets), 12);
    EXPECT_EQ(slotOf(&HIsaAdapter::getDrives), 13);
    EXPECT_EQ(slotOf(&HIsaAdapter::clearDrives), 14);
    EXPECT_EQ(slotOf(&HIsaAdapter::getDrivePools), 15);
    EXPECT_EQ(slotOf(&HIsaAdapter::getDevices), 17);
    EXPECT_EQ(slotOf(&HIsaAdapter::clearDevices), 18);
    EXPECT_EQ(slotOf(&HIsaAdapter::getLuns), 19);
    EXPECT_EQ(slotOf(&HIsaAdapter::clearLuns), 20);
    EXPECT_EQ(slotOf(&HIsaAdapter::getLunNameIndex), 23);
    EXPECT_EQ(slotOf(&HIsaAdapter::getLunPathTable), 25);
    EXPECT_EQ(slotOf(&HIsaAdapter::factoryReset), 28);
    EXPECT_EQ(slotOf(&HIsaAdapter::setPassword), 29);
    EXPECT_EQ(slotOf(&HIsaAdapter::restart), 30);
    EXPECT_EQ(slotOf(&HIsaAdapter::saveCaptureFile), 31);
    EXPECT_EQ(slotOf(&HIsaAdapter::saveFruFile), 32);
    EXPECT_EQ(slotOf(&HIsaAdapter::restoreFruFile), 33);
    EXPECT_EQ(slotOf(&HIsaAdapter::getSystemCapture), 34);
    EXPECT_EQ(slotOf(&HIsaAdapter::restoreDriveConfig), 35);
    EXPECT_EQ(slotOf(&HIsaAdapter::saveCacheDump), 36);
    EXPECT_EQ(slotOf(&HIsaAdapter::updateFirmware), 37);
    EXPECT_EQ(slotOf(&HIsaAdapter::getFile), 38);
    EXPECT_EQ(slotOf(&HIsaAdapter::putFile), 39);
}

TEST(InterfaceSlots, AdapterDevicePoolPortsAndHealth)
{
    EXPECT_EQ(slotOf(&HIsaAdapter::getAdapterInfo), 42);
    EXPECT_EQ(slotOf(&HIsaAdapter::setSymbolicName), 43);
    EXPECT_EQ(slotOf(&HIsaAdapter::getMemoryInfo), 44);
    EXPECT_EQ(slotOf(&HIsaAdapter::getAdapterStatistics), 45);
    EXPECT_EQ(slotOf(&HIsaAdapter::clearAdapterStatistics), 46);
    EXPECT_EQ(slotOf(&HIsaAdapter::getPoolInfo), 47);
    EXPECT_EQ(slotOf(&HIsaAdapter::setPoolSize), 48);
    EXPECT_EQ(slotOf(&HIsaAdapter::removePool), 49);
    EXPECT_EQ(slotOf(&HIsaAdapter::setFcPortEnabled), 50);
    EXPECT_EQ(slotOf(&HIsaAdapter::getFcInfo), 51);
    EXPECT_EQ(slotOf(&HIsaAdapter::setFcInfo), 52);
    EXPECT_EQ(slotOf(&HIsaAdapter::getSfpInfo), 53);
    EXPECT_EQ(slotOf(&HIsaAdapter::getAdapterHealth), 55);
    EXPECT_EQ(slotOf(&HIsaAdapter::setBeacon), 56);
    EXPECT_EQ(slotOf(&HIsaAdapter::executeNvdimmCommand), 57);
    EXPECT_EQ(slotOf(&HIsaAdapter::getNvdimmInfo), 58);
}

TEST(InterfaceSlots, AdapterGathering)
{
    EXPECT_EQ(slotOf(&HIsaAdapter::getTargetsAndInitiators), 60);
    EXPECT_EQ(slotOf(&HIsaAdapter::getLunsForSpecificTarget), 61);
    EXPECT_EQ(slotOf(&HIsaAdapter::getLunIoStatistics), 63);
    EXPECT_EQ(slotOf(&HIsaAdapter::getDrivesWithErrorDetails), 65);
    EXPECT_EQ(slotOf(&HIsaAdapter::addDriveToPoolBySsdId), 66);
    EXPECT_EQ(slotOf(&HIsaAdapter::addDriveToPool), 67);
    EXPECT_EQ(slotOf(&HIsaAdapter::removeDriveFromPool), 68);
    EXPECT_EQ(slotOf(&HIsaAdapter::removeDriveFromPoolBySsdId), 69);
    EXPECT_EQ(slotOf(&HIsaAdapter::getSmartDriveInfo), 71);
}

TEST(InterfaceSlots, AdapterLunsCacheClustersAndLog)
{
    EXPECT_EQ(slotOf(&HIsaAdapter::createLun), 73);
    EXPECT_EQ(slotOf(&HIsaAdapter::modifyLun), 74);
    EXPECT_EQ(slotOf(&HIsaAdapter::setLunMirror), 75);
    EXPECT_EQ(slotOf(&HIsaAdapter::removeLun), 76);
    EXPECT_EQ(slotOf(&HIsaAdapter::clearLunStatistics), 77);
    EXPECT_EQ(slotOf(&HIsaAdapter::enableCache), 78);
    EXPECT_EQ(slotOf(&HIsaAdapter::modifyCache), 79);
    EXPECT_EQ(slotOf(&HIsaAdapter::disableCache), 80);
    EXPECT_EQ(slotOf(&HIsaAdapter::disableCacheByWwuln), 81);
    EXPECT_EQ(slotOf(&HIsaAdapter::startCacheFlush), 82);
    EXPECT_EQ(slotOf(&HIsaAdapter::getCacheFlushProgress), 83);
    EXPECT_EQ(slotOf(&HIsaAdapter::lockCache), 84);
    EXPECT_EQ(slotOf(&HIsaAdapter::unlockCache), 85);
    EXPECT_EQ(slotOf(&HIsaAdapter::invalidateCache), 86);
    EXPECT_EQ(slotOf(&HIsaAdapter::getReservations), 87);
    EXPECT_EQ(slotOf(&HIsaAdapter::clearReservation), 88);
    EXPECT_EQ(slotOf(&HIsaAdapter::getCacheStatistics), 90);
    EXPECT_EQ(slotOf(&HIsaAdapter::getStatistics), 91);
    EXPECT_EQ(slotOf(&HIsaAdapter::createCluster), 92);
    EXPECT_EQ(slotOf(&HIsaAdapter::destroyCluster), 93);
    EXPECT_EQ(slotOf(&HIsaAdapter::addClusterMember), 94);
    EXPECT_EQ(slotOf(&HIsaAdapter::removeClusterMember), 95);
    EXPECT_EQ(slotOf(&HIsaAdapter::clearLog), 96);
    EXPECT_EQ(slotOf(&HIsaAdapter::getLogView), 98);
    EXPECT_EQ(slotOf(&HIsaAdapter::getLogViewFromFile), 99);
    EXPECT_EQ(slotOf(&HIsaAdapter::saveLogFile), 100);
    EXPECT_EQ(slotOf(&HIsaAdapter::loadLog), 101);
}

TEST(InterfaceSlots, SubObjectCollectionsFindWhereTheAdapterCollectionDoes)
{
    long adapterFind = slotOf(&HIsaAdapterCollection::find);
    EXPECT_EQ(slotOf(&HTargetCollection::find), adapterFind);
    EXPECT_EQ(slotOf(&HInitiatorCollection::find), adapterFind);
    EXPECT_EQ(slotOf(&HDeviceCollection::find), adapterFind);
    EXPECT_EQ(slotOf(&HDriveCollection::contains), slotOf(&HIsaAdapterCollection::contains));
    EXPECT_EQ(slotOf(&HDriveCollection::find), adapterFind);
    EXPECT_EQ(slotOf(&HLunCollection::find), adapterFind);
    EXPECT_EQ(slotOf(&HLunPathTable::find), adapterFind);
}

TEST(InterfaceSlots, SubObjectsBehindTheirReservedHead)
{
    EXPECT_EQ(slotOf(&HTarget::getTargetId), 5);
    EXPECT_EQ(slotOf(&HTarget::getTargetInfo), 6);
    EXPECT_EQ(slotOf(&HTarget::getLunIds), 7);
    EXPECT_EQ(slotOf(&HLunIdList::count), 5);
    EXPECT_EQ(slotOf(&HLunIdList::at), 6);
    EXPECT_EQ(slotOf(&HInitiator::getInitiatorInfo), 5);
    EXPECT_EQ(slotOf(&HDevice::getDeviceInfo), 5);
    EXPECT_EQ(slotOf(&HDrive::getDriveInfo), 5);
    EXPECT_EQ(slotOf(&HDrive::getDriveId), 6);
    EXPECT_EQ(slotOf(&HDrivePool::getDrivePoolId), 5);
    EXPECT_EQ(slotOf(&HDrivePool::getDriveIds), 6);
    EXPECT_EQ(slotOf(&HDriveIdList::count), 5);
    EXPECT_EQ(slotOf(&HDriveIdList::first), 6);
    EXPECT_EQ(slotOf(&HDriveIdList::next), 7);
    EXPECT_EQ(slotOf(&HLun::getLunId), 5);
    EXPECT_EQ(slotOf(&HLun::getLunInfo), 6);
    EXPECT_EQ(slotOf(&HLun::refreshLunInfo), 7);
    EXPECT_EQ(slotOf(&HLunNameIndex::findLuns), 5);
    EXPECT_EQ(slotOf(&HLunNameIndex::lookup), 6);
    EXPECT_EQ(slotOf(&HLunNameIndex::scanAll), 7);
    EXPECT_EQ(slotOf(&HLunNameIndex::scanTarget), 8);
    EXPECT_EQ(slotOf(&HLunPathEntry::getLunId), 5);
    EXPECT_EQ(slotOf(&HLunPathEntry::displayText), 6);
}

TEST(InterfaceSlots, LogViewOperationsComeFirst)
{
    EXPECT_EQ(slotOf(&HLogView::getCount), 0);
    EXPECT_EQ(slotOf(&HLogView::getFirstEntry), 1);
    EXPECT_EQ(slotOf(&HLogView::getLastEntry), 2);
    EXPECT_EQ(slotOf(&HLogView::getNextEntry), 3);
    EXPECT_EQ(slotOf(&HLogView::getPreviousEntry), 4);
    EXPECT_EQ(slotOf(&HLogView::getEntryAt), 5);
    EXPECT_EQ(slotOf(&HLogView::findByTime), 6);
    EXPECT_EQ(slotOf(&HLogView::findBySeverity), 7);
    EXPECT_EQ(slotOf(&HLogView::findByText), 8);
    EXPECT_EQ(slotOf(&HLogView::writeReport), 9);
    EXPECT_EQ(slotOf(&HLogView::writeCsvFile), 10);
}

TEST(InterfaceSlots, MessageHandler)
{
    // Slots 0 and 1 are the two forms of the destructor.
    EXPECT_EQ(slotOf(&HMsgHandler::debugMsg), 2);
    EXPECT_EQ(slotOf(&HMsgHandler::infoMsg), 3);
    EXPECT_EQ(slotOf(&HMsgHandler::failureMsg), 4);
    EXPECT_EQ(slotOf(&HMsgHandler::progressMsg), 5);
    EXPECT_EQ(slotOf(&HMsgHandler::progressBar), 6);
    EXPECT_EQ(slotOf(&HMsgHandler::unknownMsg), 7);
    EXPECT_EQ(slotOf(&HMsgHandler::notify), 8);
    EXPECT_EQ(slotOf(&HMsgHandler::configureProgress), 9);
}

TEST(InterfaceSlots, CollectionsHoldTheirItemsRightBehindTheTablePointer)
{
    struct Luns : HLunCollection {
        HLun* find(const PLunID&) override { return nullptr; }
    } luns;
    auto offset = reinterpret_cast<const char*>(&luns.items) - reinterpret_cast<const char*>(&luns);
    EXPECT_EQ(offset, static_cast<ptrdiff_t>(sizeof(void*)));
}

TEST(MHbaReturnBuffer, HoldsOneCodeStartingAtSuccess)
{
    MHbaReturnBuffer buffer;
    EXPECT_EQ(buffer.returnCode, MHBA_S_OK);
    EXPECT_EQ(sizeof buffer, 4u);
}

TEST(MHbaReturnBuffer, SaysWhenNoLibraryCanGiveTheText)
{
    // The loader's tests show the library's own text; with no API object,
    // the code still reaches the user.
    HbaMgmtApi* saved = g_pHbaMgmtApi;
    g_pHbaMgmtApi = nullptr;
    EXPECT_EQ(MHbaReturnBuffer(MHBA_E_NOT_SUPPORTED).displayText(), "Return code 1003 (management library not loaded)");
    g_pHbaMgmtApi = saved;
}

TEST(ReturnCodes, CarryTheirNumbersUnderTheApisName)
{
    EXPECT_EQ(HbaMgmtApi::MHBA_S_OK_REBOOT_REQUIRED, 1);
    EXPECT_EQ(HbaMgmtApi::MHBA_E_INVALID_ARG, 1100);
    HbaMgmtApi::e_MHBA_RETURN code = MHBA_E_OBJECT_NOT_FOUND;
    EXPECT_EQ(code, 1206);
    EXPECT_EQ(sizeof code, 4u);
}
