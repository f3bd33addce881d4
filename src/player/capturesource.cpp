#include "capturesource.h"

void CaptureSource::requestSnapshot()
{
    // Delivered later, as a player's own asynchronous snapshot would be.
    QMetaObject::invokeMethod(
        this, [this]() { emit snapshotTaken(snapshot()); }, Qt::QueuedConnection);
}
