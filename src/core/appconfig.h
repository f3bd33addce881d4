#ifndef APPCONFIG_H
#define APPCONFIG_H

#include <QMargins>
#include <QMetaType>
#include <QPixmap>
#include <QRect>
#include <QSize>
#include <QString>

// Shared string constants and small value types. Every comparison of a
// settings key, event name, mpv property or output format uses these.
namespace AppConfig {

// Application name; also the single-instance key and the settings organisation.
inline const QString APP_NAME = QStringLiteral("Glimmer");

// Settings keys
inline const QString FILE_SAVE_PATH = QStringLiteral("file_save_path");
inline const QString PROPERTY_WIDTH = QStringLiteral("property_width");
inline const QString PROPERTY_HEIGHT = QStringLiteral("property_height");
inline const QString PROPERTY_X_SPACE = QStringLiteral("property_x_space");
inline const QString PROPERTY_Y_SPACE = QStringLiteral("property_y_space");
inline const QString PROPERTY_SCALE = QStringLiteral("property_scale");
inline const QString PROPERTY_COLUMN = QStringLiteral("property_column");
inline const QString RADIO_TYPE = QStringLiteral("radio_type");
inline const QString FILE_EXTENSION = QStringLiteral("file_extension");
inline const QString PLAYER_VOLUME = QStringLiteral("player_volume");
inline const QString PLAYER_MUTE = QStringLiteral("player_mute");
inline const QString AI_CAPTION_LANG = QStringLiteral("ai_caption_lang");
inline const QString APP_LANG = QStringLiteral("app_lang");
inline const QString APP_REGISTER = QStringLiteral("app_register");
inline const QString SHOW_GUIDE_REGISTER_BY_EXPORT = QStringLiteral("show_guide_regisetr_by_export");
inline const QString EXPORT_FIRST_IN_APP = QStringLiteral("export_first_in_app");
inline const QString OPEN_FILE_PATH = QStringLiteral("open_file_path");
inline const QString FIRST_OPEN_APP = QStringLiteral("first_open_app");
inline const QString CAPTION_X = QStringLiteral("caption_x");
inline const QString CAPTION_Y = QStringLiteral("caption_y");
inline const QString CAPTION_FONT_SIZE = QStringLiteral("caption_font_size");
inline const QString CAPTION_BORDER = QStringLiteral("caption_border");
inline const QString CAPTION_SHADOW = QStringLiteral("caption_shadow");

// Addresses of the services; settings with defaults so users and tests can point elsewhere.
inline const QString SPEECH_SERVER_URL = QStringLiteral("speech_server_url");
inline const QString DEFAULT_SPEECH_SERVER_URL = QStringLiteral("http://127.0.0.1:17861");
// The engine behind the bundled speech service: "builtin" or "server" (a
// transcription server with the OpenAI-compatible API, at this address, with
// this model and key).
inline const QString SPEECH_ENGINE = QStringLiteral("speech_engine");
inline const QString SPEECH_ENGINE_BUILTIN = QStringLiteral("builtin");
inline const QString SPEECH_ENGINE_SERVER = QStringLiteral("server");
inline const QString SPEECH_ENGINE_URL = QStringLiteral("speech_engine_url");
inline const QString SPEECH_ENGINE_MODEL = QStringLiteral("speech_engine_model");
inline const QString DEFAULT_SPEECH_ENGINE_MODEL = QStringLiteral("whisper-1");
inline const QString SPEECH_ENGINE_KEY = QStringLiteral("speech_engine_key");
inline const QString LICENSE_SERVER_URL = QStringLiteral("license_server_url");
inline const QString DEFAULT_LICENSE_SERVER_URL = QStringLiteral("https://license.glimmer-app.org");
inline const QString VERSION_FILE_URL = QStringLiteral("version_file_url");
inline const QString DEFAULT_VERSION_FILE_URL = QStringLiteral("https://download.glimmer-app.org/glimmer/upgrade.json");
inline const QString HOME_PAGE_URL = QStringLiteral("https://www.glimmer-app.org");

// mpv property names
inline const QString MPV_TIME_POS = QStringLiteral("time-pos");
inline const QString MPV_DURATION = QStringLiteral("duration");
inline const QString MPV_PERCENT_POS = QStringLiteral("percent-pos");
inline const QString MPV_ESTIMATED_FRAME_NUMBER = QStringLiteral("estimated-frame-number");
inline const QString MPV_ESTIMATED_FRAME_COUNT = QStringLiteral("estimated-frame-count");

// Event names of the bus
inline const QString CAPTURE_IMAGE = QStringLiteral("capture_image");
inline const QString UPDATE_CAPTURE_IMAGE = QStringLiteral("update_capture_image");
inline const QString SELECT_IMAGE_COMPLETE = QStringLiteral("select_image_complete");
inline const QString TASK_ID = QStringLiteral("task_id");
inline const QString TIME_POS = QStringLiteral("time_pos");
inline const QString UPDATE_CAPTION = QStringLiteral("update_caption");
inline const QString VIDEO_TO_AUDIO_START = QStringLiteral("video_to_audio_start");
inline const QString VIDEO_TO_AUDIO_STOP = QStringLiteral("video_to_audio_stop");
inline const QString CHANGE_CAPTION = QStringLiteral("change_caption");
inline const QString UPDATE_CAPTION_NEW = QStringLiteral("update_caption_new");
inline const QString CREATE_CAPTION_COMPLETE = QStringLiteral("create_caption_complete");
inline const QString LOAD_FILE_COMPLETE = QStringLiteral("load_file_complete");
inline const QString STOP_AI_CAPTION = QStringLiteral("stop_ai_caption");
inline const QString REMOVE_CAPTION = QStringLiteral("remove_caption");
inline const QString REGISTER_COMPLETE = QStringLiteral("regiseter_complete");
inline const QString REGISTER_ERROR = QStringLiteral("regiseter_error");
inline const QString SETTING_CHANGE = QStringLiteral("setting_change");

// Payload keys of HTTP replies
inline const QString KEY_TASK_ID = TASK_ID;
inline const QString KEY_REGISTER = QStringLiteral("register");

// Output formats
inline const QString FORMAT_PNG = QStringLiteral("PNG");
inline const QString FORMAT_JPG = QStringLiteral("JPG");
inline const QString FORMAT_WEBP = QStringLiteral("WEBP");

// One captured frame.
struct CaptureData {
    QPixmap pixmap;
    double time = 0.0; // seconds
    int frame = 0;
};

// Scale a size written for a 96 dpi screen to the current screen.
int rate(int value);
QSize rate(const QSize& size);
QMargins rate(int left, int top, int right, int bottom);
QMargins rate(const QMargins& margins);
QRect rate(const QRect& rect);

// Registers the embedded resources (style sheets, images, translations);
// needed because they live in a static library.
void initResources();

// The application style sheet: the embedded text with its fixed replacements,
// every px value scaled to the current screen.
QString loadApplicationStyleSheet();

// Registers this layer's value types that travel in queued signals and bus
// events (CaptionManager::registerMetaTypes registers them all, in order).
void registerMetaTypes();

} // namespace AppConfig

Q_DECLARE_METATYPE(AppConfig::CaptureData)

#endif // APPCONFIG_H
