// The two GlobalManager services that work on the caption store's files. They
// are declared with the rest of the facade in the core layer and defined here,
// in the layer that owns that state, so that core never includes captions.
#include "globalmanager.h"

#include "audioextractor.h"
#include "captionmanager.h"
#include "subtitleconverter.h"

void GlobalManager::videoToAudio(const QString& videoPath)
{
    m_audio->start(videoPath, CaptionManager::instance()->getAudioFilePath());
}

QString GlobalManager::srtToAss(const QString& srtPath)
{
    CaptionManager* captions = CaptionManager::instance();
    QString error;
    const QString output = SubtitleConverter::srtToAss(srtPath, &error);
    // The message belongs to the converted file, so that loading it keeps it.
    captions->setLastError(error, SubtitleConverter::outputPath(srtPath));
    return output;
}
