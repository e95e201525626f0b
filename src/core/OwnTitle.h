#pragma once

#include <QSignalBlocker>
#include <QVariant>
#include <QWidget>

/// The title of one of our windows: it follows the language until a host gives the window another
/// one, which stays.
class OwnTitle
{
public:
    OwnTitle() = delete;

    /// Takes the title that the window's form has set for our own. To be called when the form is
    /// set up.
    static void remember(QWidget &window) { window.setProperty(kProperty, window.windowTitle()); }

    /// Gives the window our title in the language of the moment, unless a host's stands there.
    static void show(QWidget &window, const QString &title)
    {
        const QVariant shown = window.property(kProperty);
        if (!shown.isValid() || shown.toString() == window.windowTitle()) {
            window.setWindowTitle(title);
            remember(window);
        }
    }

    /// Lets the form set its texts in the language of the moment, the title as show() does it.
    template<class Form, class Window>
    static void retranslate(Form &form, Window &window)
    {
        const QString before = window.windowTitle();
        QSignalBlocker blocker(window);
        form.retranslateUi(&window);
        const QString title = window.windowTitle();
        window.setWindowTitle(before);
        blocker.unblock();
        show(window, title);
    }

private:
    static constexpr char kProperty[] = "_tx_ownTitle";
};
