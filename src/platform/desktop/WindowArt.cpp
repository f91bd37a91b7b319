#include "platform/desktop/WindowArt.h"

#include "platform/base/Failure.h"

namespace fh {

const QList<WindowPicture>& WindowPictures() {
  static const QList<WindowPicture> pictures = [] {
    QList<WindowPicture> list;
    const auto pair = [&list](const char* up, const char* down, QSize size) {
      list.append({up, size});
      list.append({down, size});
    };
    list.append({"Palette", {640, 480}});
    // The opening screen.
    pair("SplashStartUp", "SplashStartDown", {122, 118});
    pair("SplashDemoUp", "SplashDemoDown", {122, 118});
    pair("SplashExitUp", "SplashExitDown", {122, 118});
    // The main window: the meter's 24 cells of 32 x 29 and the frame's five buttons.
    list.append({"Meter", {768, 29}});
    pair("StereoUp", "StereoDown", {89, 40});
    pair("ComputerUp", "ComputerDown", {42, 42});
    pair("ExitUp", "ExitDown", {48, 34});
    pair("LeftUp", "LeftDown", {61, 40});
    pair("RightUp", "RightDown", {61, 40});
    // The login and the new user.
    list.append({"LoginBack", {320, 470}});
    pair("LoginNewUserUp", "LoginNewUserDown", {85, 78});
    pair("LoginRemoveUp", "LoginRemoveDown", {85, 65});
    pair("LoginCancelUp", "LoginCancelDown", {85, 48});
    pair("LoginOKUp", "LoginOKDown", {85, 78});
    list.append({"NewUserBack", {320, 240}});
    pair("NewUserCancelUp", "NewUserCancelDown", {88, 64});
    // The OK of every small window that lies over the house.
    pair("OkUp", "OkDown", {53, 64});
    // The choice screen, the info and help boxes and the music dialog.
    list.append({"ChoiceBack", {320, 240}});
    pair("ChoiceLeftUp", "ChoiceLeftDown", {64, 48});
    pair("ChoiceRightUp", "ChoiceRightDown", {64, 48});
    pair("ChoiceInformationUp", "ChoiceInformationDown", {115, 31});
    pair("ChoiceSavingsUp", "ChoiceSavingsDown", {115, 31});
    pair("ChoiceHelpUp", "ChoiceHelpDown", {57, 29});
    list.append({"InfoBack", {320, 240}});
    list.append({"HelpBack", {320, 240}});
    list.append({"MusicBack", {320, 240}});
    pair("MusicRockUp", "MusicRockDown", {116, 31});
    pair("MusicJazzUp", "MusicJazzDown", {116, 31});
    pair("MusicClassicalUp", "MusicClassicalDown", {116, 31});
    pair("MusicSoulUp", "MusicSoulDown", {116, 31});
    pair("MusicCountryUp", "MusicCountryDown", {116, 31});
    pair("MusicOffUp", "MusicOffDown", {116, 31});
    return list;
  }();
  return pictures;
}

QPixmap WindowPixmap(const QString& name) {
  QPixmap picture(QStringLiteral(":/windows/%1.bmp").arg(name));
  if (picture.isNull()) throw RuntimeFailure(Failure::InvalidPicture, QStringLiteral("window picture '%1'").arg(name));
  return picture;
}

}  // namespace fh
