#include "WorldData.h"

#include "platform/data/Database.h"

namespace fh::fhworld {

namespace {

QString text(const Recordset& rows, const QString& column) {
  const FieldValue value = rows.Field(column);
  return value.isNull() ? QString() : value.toText();
}

std::optional<QString> nullableText(const Recordset& rows, const QString& column) {
  const FieldValue value = rows.Field(column);
  if (value.isNull()) return std::nullopt;
  return value.toText();
}

int number(const Recordset& rows, const QString& column) {
  const FieldValue value = rows.Field(column);
  return value.isNull() ? 0 : value.toLong();
}

// Calls `readRow` for every row of a table, query or statement.
template <typename ReadRow>
void forEachRow(Database& db, const QString& source, ReadRow readRow) {
  Recordset rows = db.OpenRecordset(source);
  for (; !rows.IsEOF(); rows.MoveNext()) readRow(rows);
  rows.Close();
}

void readContainers(Database& db, WorldData& world) {
  forEachRow(db, QStringLiteral("Containers"), [&](const Recordset& row) {
    ContainerRow container;
    container.name = text(row, QStringLiteral("Name"));
    container.friendlyName = text(row, QStringLiteral("Friendly Name"));
    if (!row.Field(QStringLiteral("WiseState")).isNull()) container.wiseState = number(row, QStringLiteral("WiseState"));
    container.wiseObject = text(row, QStringLiteral("WiseObject"));
    container.defaultState = number(row, QStringLiteral("DefaultState"));
    container.defaultObject = text(row, QStringLiteral("DefaultObject"));
    container.state1Verbage = text(row, QStringLiteral("State 1 Verbage"));
    container.state0Verbage = text(row, QStringLiteral("State 0 Verbage"));
    container.helpText = nullableText(row, QStringLiteral("Help Text"));
    container.listed = number(row, QStringLiteral("Listed")) != 0;
    world.containers[container.name.toLower()] = container;
  });
  forEachRow(db, QStringLiteral("SELECT * FROM Objects ORDER BY Container, DisplayOrder, Name"), [&](const Recordset& row) {
    ObjectRow object;
    object.container = text(row, QStringLiteral("Container"));
    object.name = text(row, QStringLiteral("Name"));
    object.description = text(row, QStringLiteral("Description"));
    object.savingsInfo = nullableText(row, QStringLiteral("SavingsInfo"));
    object.adr = row.Field(QStringLiteral("ADR")).toDouble();
    object.imageFile = text(row, QStringLiteral("ImageFile"));
    world.objectsByContainer[object.container.toLower()].push_back(object);
  });
}

// Sprites and their looks come through the queries the game loads them with.
void readSprites(Database& db, WorldData& world) {
  forEachRow(db, QStringLiteral("GetAllSprites"), [&](const Recordset& row) {
    SpriteRow sprite;
    sprite.name = text(row, QStringLiteral("Name"));
    sprite.shot = text(row, QStringLiteral("Shot"));
    sprite.numFrames = number(row, QStringLiteral("NumFrames"));
    sprite.x = number(row, QStringLiteral("X"));
    sprite.y = number(row, QStringLiteral("Y"));
    world.sprites.push_back(sprite);
  });
  for (SpriteRow& sprite : world.sprites) {
    QueryDef query = db.QueryDefs(QStringLiteral("GetSpriteCelSources"));
    query.SetParameter(QStringLiteral("Sprite"), sprite.name);
    Recordset rows = query.OpenRecordset();
    for (; !rows.IsEOF(); rows.MoveNext()) {
      sprite.looks.push_back({text(rows, QStringLiteral("Condition")), text(rows, QStringLiteral("CelSource")),
                              text(rows, QStringLiteral("Sound"))});
    }
    rows.Close();
    query.Close();
  }
}

void readTexts(Database& db, WorldData& world) {
  forEachRow(db, QStringLiteral("StartUp"), [&](const Recordset& row) {
    if (!world.startupScript) world.startupScript = text(row, QStringLiteral("Script"));
  });
  forEachRow(db, QStringLiteral("Shots"), [&](const Recordset& row) {
    world.shotTitles[text(row, QStringLiteral("Name")).toLower()] = text(row, QStringLiteral("Freindly Name"));
  });
  forEachRow(db, QStringLiteral("Dialogs"), [&](const Recordset& row) {
    world.dialogs[text(row, QStringLiteral("Name")).toLower()] = text(row, QStringLiteral("Text"));
  });
  forEachRow(db, QStringLiteral("InfoBoxes"), [&](const Recordset& row) {
    world.infoBoxes[text(row, QStringLiteral("Name")).toLower()] = {text(row, QStringLiteral("Title")),
                                                                     text(row, QStringLiteral("Text"))};
  });
}

void readPictures(Database& db, WorldData& world) {
  forEachRow(db, QStringLiteral("SELECT * FROM VisualRegistry ORDER BY ID"), [&](const Recordset& row) {
    world.backdrops.push_back({text(row, QStringLiteral("ID")), text(row, QStringLiteral("Shot")),
                               text(row, QStringLiteral("ImageSource")),
                               text(row, QStringLiteral("Container"))});
  });
}

void readQuestions(Database& db, WorldData& world) {
  forEachRow(db, QStringLiteral("GetHomeCheckupQuestions"), [&](const Recordset& row) {
    QuestionRow question;
    question.id = number(row, QStringLiteral("ID"));
    question.number = number(row, QStringLiteral("Number"));
    question.subNumber = number(row, QStringLiteral("Sub Number"));
    question.text = text(row, QStringLiteral("Text"));
    question.answerStyle = number(row, QStringLiteral("Answer Style"));
    for (int i = 1; i <= 8; ++i) {
      const QString item = text(row, QStringLiteral("List%1").arg(i));
      if (!item.isEmpty()) question.listItems << item;
    }
    world.questions.push_back(question);
  });
}

}  // namespace

WorldData readWorldData(Database& db) {
  WorldData world;
  readTexts(db, world);
  readContainers(db, world);
  readSprites(db, world);
  readPictures(db, world);
  readQuestions(db, world);
  forEachRow(db, QStringLiteral("SELECT * FROM WorldCheck"), [&](const Recordset& row) {
    world.databaseFaults << text(row, QStringLiteral("Problem")) + QStringLiteral(": ") + text(row, QStringLiteral("Item"));
  });
  return world;
}

}  // namespace fh::fhworld
