#include "AutoMountNetworkDrive.h"
#include "TestBase.h"

#include <QRandomGenerator>

#include <cmath>

namespace {

/// A type that nothing can compare.
struct Incomparable
{
    int number = 0;
};

/// The rule of equality as one would write it down: the parts of the address in clear, without the
/// slashes before the path, and the parameters without those that are as good as missing.
QStringList partsInClear(const QUrl &url)
{
    QString path = url.path(QUrl::FullyDecoded);
    while (path.startsWith(u'/')) {
        path = path.mid(1);
    }
    return {url.scheme(),
            url.host(),
            QString::number(url.port()),
            url.userName(QUrl::FullyDecoded),
            url.password(QUrl::FullyDecoded),
            path,
            url.query(QUrl::FullyEncoded),
            url.fragment(QUrl::FullyEncoded)};
}

QHash<QString, QVariant> withoutDefaults(const QHash<QString, QVariant> &parameters)
{
    QHash<QString, QVariant> rest;
    for (auto entry = parameters.cbegin(); entry != parameters.cend(); ++entry) {
        const QVariant &value = entry.value();
        const bool isEmptyText = value.typeId() == QMetaType::QString && value.toString().isEmpty();
        const bool isFalse = value.typeId() == QMetaType::Bool && !value.toBool();
        if (value.isValid() && !isEmptyText && !isFalse) {
            rest.insert(entry.key(), value);
        }
    }
    return rest;
}

bool plainlyEqual(const AutoMountNetworkDrive &one, const AutoMountNetworkDrive &other)
{
    const QHash<QString, QVariant> parameters = one.getExtParameters();
    const QHash<QString, QVariant> others = other.getExtParameters();
    return partsInClear(one.getUrl()) == partsInClear(other.getUrl())
        && (parameters.isSharedWith(others)
            || withoutDefaults(parameters) == withoutDefaults(others));
}

/// Changes drives in one part at a time, by values that are easily taken for one another.
class DriveShuffler
{
public:
    void change(AutoMountNetworkDrive &drive)
    {
        if (random.bounded(3) == 0) {
            changeParameters(drive);
        } else {
            changeAddress(drive);
        }
    }

private:
    template<class Values>
    auto oneOf(const Values &values)
    {
        return values.at(random.bounded(values.size()));
    }

    /// Most paths in a row are of the same shape, a look-alike for a look-alike.
    QString path()
    {
        static const QList<QStringList> kLookAlikes{
            {"/", "//", "%2F", "%2f"},
            {"a", "%61"},
            {"A", "%41", "%4", "%2541"},
            {"%", "%25", "%%", "%zz"},
            {" ", "%20", "+", "%2B"},
            {"?", "%3F", "#", "%23", ":", "%3A", "@", "%40"},
            {"~", "%7E", "[", "%5B", "|", "%7C", "\"", "%22"},
            {QString::fromUtf8("ü"), "%C3%BC", "%FC", "u"},
            {QString(QChar(0xd800)), QString(QChar(0xdc00)), QString(QChar(0xfffd)), "%EF%BF%BD",
             "%ED%A0%80", "%FF"},
            {QString(QChar(u'\0')), "%00", "\n", "%0A", "\\", "%5C", ""},
            {"..", ".", "/./", "/../"},
        };
        if (random.bounded(8) == 0) {
            shape.clear();
            for (quint32 count = random.bounded(5U); count > 0; --count) {
                shape.append(oneOf(kLookAlikes));
            }
        }
        QString text;
        for (const QStringList &pieces : qAsConst(shape)) {
            text += oneOf(pieces);
        }
        return text;
    }

    void changeAddress(AutoMountNetworkDrive &drive)
    {
        static const QList<QUrl::ParsingMode> kModes{QUrl::TolerantMode, QUrl::StrictMode,
                                                     QUrl::DecodedMode};
        static const QStringList kNames{"", QString(), "mia", "MIA", "m%69a", "m@", "%40"};
        static const QStringList kHosts{"", QString(), "a", "A", "two words", "::1", "[::1]"};
        static const QStringList kSchemes{"", "smb", "SMB", "file", "no scheme"};
        static const QList<int> kPorts{-1, 0, 445};
        QUrl url = drive.getUrl();
        switch (random.bounded(12)) {
        case 0:
            url.setScheme(oneOf(kSchemes));
            break;
        case 1:
            url.setHost(oneOf(kHosts));
            break;
        case 2:
            url.setPort(oneOf(kPorts));
            break;
        case 3:
            url.setUserName(oneOf(kNames), oneOf(kModes));
            break;
        case 4:
            url.setPassword(oneOf(kNames), oneOf(kModes));
            break;
        case 5:
            url.setQuery(oneOf(kNames), oneOf(kModes));
            break;
        case 6:
            url.setFragment(oneOf(kNames), oneOf(kModes));
            break;
        case 7:
            url = QUrl(path());
            break;
        default:
            url.setPath(path(), oneOf(kModes));
        }
        drive.setUrl(url);
    }

    void changeParameters(AutoMountNetworkDrive &drive)
    {
        static const QStringList kKeys{"NetworkDriveMountPoint", "NetworkDriveDomain", "Own"};
        static const QVariantList kValues{QVariant(),
                                          "",
                                          QString(),
                                          "Z:/",
                                          "z:/",
                                          false,
                                          true,
                                          0,
                                          1,
                                          0.0,
                                          1.0,
                                          std::nan(""),
                                          QByteArray(),
                                          QByteArray("Z:/"),
                                          QVariantList(),
                                          QStringList(),
                                          QStringList("Z:/")};
        QHash<QString, QVariant> parameters = drive.getExtParameters();
        if (random.bounded(4) == 0) {
            parameters.remove(oneOf(kKeys));
        } else {
            parameters.insert(oneOf(kKeys), oneOf(kValues));
        }
        drive.setExtParameters(parameters);
    }

    QRandomGenerator random{20260117};
    QList<QStringList> shape;
};

} // namespace

Q_DECLARE_METATYPE(Incomparable)

class TestAutoMountNetworkDriveEquality : public TestBase
{
    Q_OBJECT

private slots:
    void equalityIsThatOfThePlainRule();
    void copyEqualsWhateverItsParametersHold_data();
    void copyEqualsWhateverItsParametersHold();
};

void TestAutoMountNetworkDriveEquality::copyEqualsWhateverItsParametersHold_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("type without a comparison") << QVariant::fromValue(Incomparable());
    QTest::newRow("not a number") << QVariant(std::nan(""));
}

void TestAutoMountNetworkDriveEquality::copyEqualsWhateverItsParametersHold()
{
    QFETCH(QVariant, value);
    AutoMountNetworkDrive drive{{"Own", value}, {"NetworkDriveHost", "nas"}};
    AutoMountNetworkDrive copy = drive;
    copy.setActivated(true);
    copy.setStatus(NetworkDriveConnected);
    QVERIFY(copy == drive);
    copy.setExtParameters(drive.getExtParameters());
    QVERIFY(copy == drive);

    copy.setUrl(QUrl("smb://other"));
    QVERIFY(copy != drive);
    drive.setExtParameters({{"Own", value}});
    QVERIFY(drive != AutoMountNetworkDrive({{"Other", value}, {"NetworkDriveHost", "nas"}}));
}

void TestAutoMountNetworkDriveEquality::equalityIsThatOfThePlainRule()
{
    constexpr int kPairs = 30000;
    DriveShuffler shuffler;
    AutoMountNetworkDrive one;
    AutoMountNetworkDrive other;
    int equalPairs = 0;
    for (int pair = 0; pair < kPairs; ++pair) {
        // Mostly a pair that differs in a place or two.
        if (pair % 3 == 0) {
            other = one;
        }
        shuffler.change(pair % 2 == 0 ? one : other);
        const bool areEqual = plainlyEqual(one, other);
        equalPairs += areEqual ? 1 : 0;
        QVERIFY2((one == other) == areEqual && (other == one) == plainlyEqual(other, one),
                 qPrintable(QStringLiteral("pair %1: %2 and %3")
                                .arg(pair)
                                .arg(one.getUrl().toString(), other.getUrl().toString())));
    }
    QVERIFY(equalPairs > kPairs / 20);
    QVERIFY(equalPairs < kPairs / 2);
}

int main(int argc, char **argv)
{
    return runTest<TestAutoMountNetworkDriveEquality>(argc, argv);
}

#include "tst_AutoMountNetworkDriveEquality.moc"
