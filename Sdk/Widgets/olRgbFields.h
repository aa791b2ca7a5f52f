#pragma once

#include <OpenSG/OSGColor.h>

#include <QColor>
#include <QWidget>

#include <array>

class QLabel;
class olNumberField;

/// Three number fields for red, green and blue. Holds the floats as they were set; 0 to 1 can be typed.
class olRgbFields : public QWidget
{
    Q_OBJECT

public:
    explicit olRgbFields(QWidget *parent = nullptr);

    /// Signals nothing.
    void setColor(const osg::Color3f &color);
    [[nodiscard]] osg::Color3f color() const;

    /// The colour that was last set or signalled, whatever is being typed.
    [[nodiscard]] osg::Color3f committedColor() const;

    /// Red, green, blue. Owned by this widget.
    [[nodiscard]] const std::array<olNumberField *, 3> &fields() const { return m_fields; }

    [[nodiscard]] static QString channelName(int channel);

    /// Differences below any tolerance count too.
    [[nodiscard]] static bool same(const osg::Color3f &left, const osg::Color3f &right);

    /// The nearest colour that a screen can show.
    [[nodiscard]] static QColor onScreen(const osg::Color3f &color);

Q_SIGNALS:
    /// The user changed a channel.
    void edited();

protected:
    void changeEvent(QEvent *event) override;

private:
    void translate();

    std::array<QLabel *, 3> m_labels{};
    std::array<olNumberField *, 3> m_fields{};
};
