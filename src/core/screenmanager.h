#ifndef SCREENMANAGER_H
#define SCREENMANAGER_H

#include <QMargins>
#include <QObject>
#include <QRect>
#include <QSize>
#include <QString>

class QScreen;
class QWidget;

// The program scales every pixel size itself: sizes are written for a 96 dpi
// screen and multiplied by the rate of the screen the window is on.
class ScreenManager : public QObject
{
    Q_OBJECT
public:
    static ScreenManager* instance();

    void init(QScreen* screen);
    void updateRate(QScreen* screen);
    // The same steps from the figures a screen reports.
    void initWithDpi(double logicalDpi, double physicalDpi, double deviceRatio);
    void updateRateWithDpi(double logicalDpi);

    double getLastRate() const { return m_lastRate; }
    double getCurrentRate() const { return m_currentRate; }
    double getRealRate() const { return m_realRate; }
    double getDeviceRatio() const { return m_deviceRatio; }
    bool isMac11() const { return m_isMac11; }

    int rate(int value) const;
    QSize rate(const QSize& size) const;
    QMargins rate(int left, int top, int right, int bottom) const;
    QMargins rate(const QMargins& margins) const;
    QRect rate(const QRect& rect) const;

    void styleDpiChange(QString& styleSheet) const;
    static void scaleStyleSheet(QString& styleSheet, double rate);
    void updateWidgetInNewScreen(QWidget* widget);
    void updateWidgetChildrenInNewScreen(QWidget* widget);

    static int findPxStart(const QString& text, int from);
    static bool isNumber(char c);

    // Text comparison of a system version with "11.0", kept as the product does it.
    static bool versionAtLeast11(const QString& productVersion);

private:
    explicit ScreenManager(QObject* parent = nullptr);

    double m_lastRate = 1.0;
    double m_currentRate = 1.0;
    double m_realRate = 1.0;
    double m_deviceRatio = 1.0;
    bool m_isMac11 = false;
};

#endif // SCREENMANAGER_H
