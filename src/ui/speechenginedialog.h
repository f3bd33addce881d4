#ifndef SPEECHENGINEDIALOG_H
#define SPEECHENGINEDIALOG_H

#include "speechengine.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class SpeechEngineTest;

// Chooses the engine automatic captions use: the built-in one (offline,
// English) or a transcription server with the OpenAI-compatible API (address,
// model, key). Test tries the choice with a second of generated sound; OK
// keeps it in the settings and the speech service restarts with it.
class SpeechEngineDialog : public QDialog
{
    Q_OBJECT
public:
    explicit SpeechEngineDialog(QWidget* parent = nullptr);

    // The window's dialog, made when none is open, shown without blocking.
    static SpeechEngineDialog* showFor(QWidget* window);

    // The engine as the dialog's fields show it.
    SpeechEngine engine() const;
    void setEngine(const SpeechEngine& engine);
    // What the last test said; empty before one.
    QString testResult() const;
    SpeechEngineTest* test() const { return m_test; }

    void accept() override;
    void reject() override;

private:
    void retranslate();
    void updateFields();
    void runTest();

    QRadioButton* m_builtIn = nullptr;
    QRadioButton* m_server = nullptr;
    QLineEdit* m_url = nullptr;
    QLineEdit* m_model = nullptr;
    QLineEdit* m_key = nullptr;
    QLabel* m_urlLabel = nullptr;
    QLabel* m_modelLabel = nullptr;
    QLabel* m_keyLabel = nullptr;
    QLabel* m_note = nullptr;
    QLabel* m_result = nullptr;
    QPushButton* m_testButton = nullptr;
    QDialogButtonBox* m_buttons = nullptr;
    SpeechEngineTest* m_test = nullptr;
};

#endif // SPEECHENGINEDIALOG_H
