#include "LocalisationUpdater.h"
#include "TXError.h"

#include <QApplication>
#include <QFontDatabase>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QSharedPointer>
#include <QTranslator>

#include <iostream>
#include <memory>
#include <utility>

// Not a test of its own: tests copy it into an application of their own, with "../Resources" beside
// the program, and run it where they need that, or another application object than their own.
//
// Arguments: the kind of application object ("none", "core", "gui", "widgets"), a command and its
// arguments. Answers with one JSON object.

namespace {

std::unique_ptr<QCoreApplication> makeApplication(const QByteArray &kind, int &argc, char **argv)
{
    if (kind == "core") {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    if (kind == "gui") {
        return std::make_unique<QGuiApplication>(argc, argv);
    }
    return kind == "widgets" ? std::make_unique<QApplication>(argc, argv) : nullptr;
}

QString styleText(const QTranslator *translator)
{
    return translator ? translator->translate("QObject", "No Style has been loaded.") : QString();
}

void insert(const TXError &error, QJsonObject *answer)
{
    answer->insert("error", error.getLocalizedDescription());
    answer->insert("domain", error.domain);
    answer->insert("code", error.code);
    answer->insert("hasError", error.isValid());
}

void applyStyle(const QByteArray &file, QJsonObject *answer)
{
    TXError error;
    answer->insert("result",
                   LocalisationUpdater::updateCSSFileOfApp(&error, QString::fromUtf8(file)));
    answer->insert("withoutError",
                   LocalisationUpdater::updateCSSFileOfApp(nullptr, QString::fromUtf8(file)));
    insert(error, answer);
    if (qobject_cast<QApplication *>(QCoreApplication::instance())) {
        answer->insert("sheet", qApp->styleSheet());
    }
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        answer->insert("families", QJsonArray::fromStringList(QFontDatabase::families()));
    }
}

void install(const QByteArray &module, const QByteArray &language, QJsonObject *answer)
{
    TXError error;
    const QSharedPointer<QTranslator> translator = LocalisationUpdater::updateLocalisationOfApp(
        QString::fromUtf8(module), QString::fromUtf8(language), &error);
    answer->insert("installed", !translator.isNull());
    answer->insert("text", QCoreApplication::translate("QObject", "No Style has been loaded."));
    insert(error, answer);
}

/// The application goes before the pointer does.
void outlive(const QByteArray &module, std::unique_ptr<QCoreApplication> application,
             QJsonObject *answer)
{
    QSharedPointer<QTranslator> translator = LocalisationUpdater::updateLocalisationOfApp(
        QString::fromUtf8(module), QStringLiteral("fr"), nullptr);
    const QPointer<QTranslator> watched = translator.data();
    answer->insert("isChild", watched && watched->parent() == application.get());
    application.reset();
    answer->insert("isThereWithoutApplication", !watched.isNull());
    answer->insert("text", styleText(translator.data()));
    translator.reset();
    answer->insert("isGoneWithThePointer", watched.isNull());
}

void import(const QByteArray &folder, QJsonObject *answer)
{
    TXError error;
    answer->insert(
        "result",
        LocalisationUpdater::updateLocalisationFile(QString::fromUtf8(folder), &error, nullptr));
    insert(error, answer);
}

} // namespace

int main(int argc, char **argv)
{
    const QByteArray command = argc > 2 ? argv[2] : "";
    const QByteArray first = argc > 3 ? argv[3] : "";
    const QByteArray second = argc > 4 ? argv[4] : "";
    std::unique_ptr<QCoreApplication> application =
        makeApplication(argc > 1 ? argv[1] : "", argc, argv);
    QJsonObject answer;
    if (command == "style") {
        applyStyle(first, &answer);
    } else if (command == "install") {
        install(first, second, &answer);
    } else if (command == "outlive") {
        outlive(first, std::move(application), &answer);
    } else if (command == "import") {
        import(first, &answer);
    }
    std::cout << QJsonDocument(answer).toJson().constData();
    return 0;
}
