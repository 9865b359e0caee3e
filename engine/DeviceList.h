#ifndef DEVICELIST_H
#define DEVICELIST_H

#include "DeviceRecord.h"

#include <QVector>

/// A camera as the user sees it.
struct ListedDevice {
    int record = -1; ///< index of the record it stands for
    QString name; ///< unique in its list
    QString model; ///< the name without the number that tells twins apart
    /// What the camera is, independent of its index in the list and of the name that is shown.
    QString identity;
    QString serial; ///< of the camera; may be empty, or that of every camera of its model
};

/// Which camera the user wants.
struct DeviceChoice {
    int index = 0; ///< used as long as no identity is known
    QString identity;
    QString model;
    QString serial;
    bool onlyOne = false; ///< there was nothing to choose from
};

/// The cameras among @p records: each once, without metadata, output and infra-red nodes, twins
/// numbered. Video nodes come first, by socket; then the media server's, by name; the
/// demonstration camera is last. The order does not depend on the order of the records.
QVector<ListedDevice> listedDevices(const QVector<DeviceRecord> &records);

/// Index of the wanted camera in @p devices, -1 when it is not there. A camera plugged into another
/// socket is recognised by its model, and among several of that by its serial number; one that
/// never had a rival may be stood in for by the first.
int indexOfChoice(const QVector<ListedDevice> &devices, const DeviceChoice &choice);

/// The choice of entry @p index of @p devices, also when there is no such entry.
DeviceChoice choiceOf(const QVector<ListedDevice> &devices, int index);

#endif
