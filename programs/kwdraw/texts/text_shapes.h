/// Texts of all kinds as shapes.
#pragma once

#include <entities/mtext.h>
#include <kwdraw/scene/scene_writer.h>

class KdDbDatabase;
class KdDbText;
class KdDbMText;
class KdDbFcf;
class KdDbArcAlignedText;
class KdDbRText;

/// A single-line text or an attribute; the codes %%c, %%d, %%p, %%u, %%o, %%nnn are carried out.
void writeText(const KdDbText& text, SceneWriter& writer);
void writeMText(const KdDbMText& text, SceneWriter& writer);
/// The same for a text that is a part of another entity: of a multileader, an attribute, a table.
void writeMText(const MTextData& text, SceneWriter& writer);
/// Letters along an arc.
void writeArcText(const KdDbArcAlignedText& text, SceneWriter& writer);
/// The expression or the name of a file as it stands, since a drawing doesn't hold the outcome.
void writeRText(const KdDbRText& text, SceneWriter& writer);
/// A tolerance: frames and symbols.
void writeFcf(const KdDbFcf& tolerance, SceneWriter& writer);
