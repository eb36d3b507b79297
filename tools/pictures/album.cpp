#include "tools/pictures/album.h"

#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "tools/pictures/scenes.h"

namespace jogeon::pictures {
namespace {

constexpr QSize kWindow(1000, 640);  // before other screens open beside the first
constexpr int kSmallest = 0;         // of the files

void Save(const QPixmap& picture, const QString& file) {
    if (!picture.save(file, "PNG", kSmallest))
        throw std::runtime_error(file.toStdString() + ": can't be saved");
    std::printf("%s\n", file.toUtf8().constData());
    std::fflush(stdout);
}

// One terminal for all of them that are wanted. Another user of the computer has sets as well.
void TakeSome(const std::vector<Picture>& pictures, const QString& theme, const QString& language,
              const QString& folder, const QStringList& wanted) {
    const auto asked = [&](const Picture& one) { return wanted.isEmpty() || wanted.contains(one.name); };
    if (std::none_of(pictures.begin(), pictures.end(), asked)) return;
    const QTemporaryDir home;
    Studio("partner", home.path(), theme, language).SaveSets({"가치주", "단기 반등"});
    Studio studio("trader", home.path(), theme, language);
    for (const Picture& one : pictures) {
        if (!asked(one)) continue;
        Save(one.take(studio), folder + "/" + one.name + ".png");
        studio.Terminal().Desk().CloseAll();
        studio.Window().resize(kWindow);
    }
}

}  // namespace

void TakePictures(const QString& theme, const QString& folder, const QStringList& wanted) {
    TakeSome(OwnPictures(), theme, "ko", folder, wanted);
    TakeSome(PicturesAround(), theme, "ko", folder, wanted);
    TakeSome(EnglishPictures(), theme, "en", folder, wanted);
}

}  // namespace jogeon::pictures
