<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>ArtAnimationWidget</name>
    <message>
        <source>Drag a frame to move it against its hotspot (the red cross)</source>
        <translation>Перетащите кадр, чтобы сдвинуть его относительно точки привязки (красного крестика)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Пуск</translation>
    </message>
    <message>
        <source>Play or pause the animation</source>
        <translation>Запустить или приостановить анимацию</translation>
    </message>
    <message>
        <source>◀ Step</source>
        <translation>◀ Шаг</translation>
    </message>
    <message>
        <source>Show the frame before</source>
        <translation>Показать предыдущий кадр</translation>
    </message>
    <message>
        <source>Step ▶</source>
        <translation>Шаг ▶</translation>
    </message>
    <message>
        <source>Show the next frame</source>
        <translation>Показать следующий кадр</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>По кругу</translation>
    </message>
    <message>
        <source>Start again after the last frame</source>
        <translation>Начинать заново после последнего кадра</translation>
    </message>
    <message>
        <source>Frames per second the game plays (header word at byte 4; 0 plays at %1)</source>
        <translation>Сколько кадров в секунду показывает игра (слово заголовка на байте 4; при 0 показывается %1)</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> к/с</translation>
    </message>
    <message>
        <source>The frame on which an attack or a spell takes effect (header word at byte 28)</source>
        <translation>Кадр, на котором срабатывает удар или заклинание (слово заголовка на байте 28)</translation>
    </message>
    <message>
        <source>All directions</source>
        <translation>Все направления</translation>
    </message>
    <message>
        <source>Play every image of the file side by side</source>
        <translation>Показывать все изображения файла рядом</translation>
    </message>
    <message>
        <source>Hotspot</source>
        <translation>Точка привязки</translation>
    </message>
    <message>
        <source>Show the hotspot: the pixel that stands on the object&apos;s position</source>
        <translation>Показать точку привязки: пиксель, который стоит на месте объекта</translation>
    </message>
    <message>
        <source>Frame box</source>
        <translation>Рамка кадра</translation>
    </message>
    <message>
        <source>Outline each frame&apos;s rectangle</source>
        <translation>Обвести прямоугольник каждого кадра</translation>
    </message>
    <message>
        <source>What transparent pixels show</source>
        <translation>Что видно сквозь прозрачные пиксели</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>Шахматка</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Чёрный</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Белый</translation>
    </message>
    <message>
        <source>Colour…</source>
        <translation>Цвет…</translation>
    </message>
    <message>
        <source>Shown size only</source>
        <translation>Только размер показа</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Action frame</source>
        <translation>Кадр действия</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>Кадр %1 из %2</translation>
    </message>
    <message>
        <source>not set (%1 fps)</source>
        <translation>не задана (%1 к/с)</translation>
    </message>
</context>
<context>
    <name>ArtDocument</name>
    <message>
        <source>%1 (at byte %2)</source>
        <translation>%1 (на байте %2)</translation>
    </message>
    <message>
        <source>an art file needs at least one image</source>
        <translation>в файле графики нужно хотя бы одно изображение</translation>
    </message>
    <message>
        <source>image %1 frame %2</source>
        <translation>изображение %1, кадр %2</translation>
    </message>
    <message>
        <source>frames whose pixel data is far too short for their size are listed but not drawn (%1 of them): %2</source>
        <translation>кадры, у которых данных пикселей намного меньше, чем нужно для их размера, перечислены, но не нарисованы (их %1): %2</translation>
    </message>
    <message>
        <source>Frame rate %1</source>
        <translation>Скорость %1 к/с</translation>
    </message>
    <message>
        <source>Action frame %1</source>
        <translation>Кадр действия %1</translation>
    </message>
    <message>
        <source>Move frame %1 of image %2</source>
        <translation>Сдвинуть кадр %1 изображения %2</translation>
    </message>
    <message>
        <source>Replace frame %1 of image %2</source>
        <translation>Заменить кадр %1 изображения %2</translation>
    </message>
    <message>
        <source>New frame %1 of image %2</source>
        <translation>Новый кадр %1 изображения %2</translation>
    </message>
    <message>
        <source>Replace the frames of image %1</source>
        <translation>Заменить кадры изображения %1</translation>
    </message>
    <message>
        <source>Import art folder</source>
        <translation>Импорт папки графики</translation>
    </message>
</context>
<context>
    <name>ArtEditorWidget</name>
    <message>
        <source>Ctrl+wheel zooms</source>
        <translation>Ctrl+колесо — масштаб</translation>
    </message>
    <message>
        <source>No frame</source>
        <translation>Нет кадра</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Кадр</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Слева</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Сверху</translation>
    </message>
    <message>
        <source>dX</source>
        <translation>dX</translation>
    </message>
    <message>
        <source>dY</source>
        <translation>dY</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Shown size only; the frame itself keeps its size (Ctrl+wheel over the picture zooms too)</source>
        <translation>Только размер показа; сам кадр свой размер сохраняет (Ctrl+колесо над рисунком тоже меняет масштаб)</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Writes the frame as data/qtLoreka.export.BMP, .JPG, .PNG and .TIF in the game directory</source>
        <translation>Записывает кадр как data/qtLoreka.export.BMP, .JPG, .PNG и .TIF в папке игры</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Copies the frame with its palette to the clipboard</source>
        <translation>Копирует кадр с палитрой в буфер обмена</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Replaces the frame by the clipboard image (placement values stay)</source>
        <translation>Заменяет кадр изображением из буфера обмена (значения размещения сохраняются)</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>This frame cannot be shown.</source>
        <translation>Этот кадр нельзя показать.</translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation>%1 × %2 пикс., %3</translation>
    </message>
    <message>
        <source>run-length</source>
        <translation>RLE-сжатие</translation>
    </message>
    <message>
        <source>raw</source>
        <translation>без сжатия</translation>
    </message>
    <message>
        <source>Could not write %1.</source>
        <translation>Не удалось записать %1.</translation>
    </message>
    <message>
        <source>Exported as BMP, JPG, PNG and TIFF.</source>
        <translation>Экспортировано в BMP, JPG, PNG и TIFF.</translation>
    </message>
    <message>
        <source>Import image</source>
        <translation>Импорт рисунка</translation>
    </message>
    <message>
        <source>Bring a picture (PNG, BMP, GIF, TIFF, JPG) into the file, its colours matched to the palette</source>
        <translation>Взять рисунок (PNG, BMP, GIF, TIFF, JPG) в файл, подобрав его цвета по палитре</translation>
    </message>
    <message>
        <source>Replace this frame…</source>
        <translation>Заменить этот кадр…</translation>
    </message>
    <message>
        <source>As a new frame after this one…</source>
        <translation>Новым кадром после этого…</translation>
    </message>
    <message>
        <source>A folder of pictures as this whole image…</source>
        <translation>Папку рисунков — всем этим изображением…</translation>
    </message>
</context>
<context>
    <name>ArtHeaderWidget</name>
    <message>
        <source>Palettes</source>
        <translation>Палитры</translation>
    </message>
    <message>
        <source>Double-click to edit palette</source>
        <translation>Дважды щёлкните, чтобы изменить палитру</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Новый</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Изображения</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Кадры</translation>
    </message>
    <message>
        <source>Palette %1</source>
        <translation>Палитра %1</translation>
    </message>
    <message>
        <source>Image %1</source>
        <translation>Изображение %1</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Кадр %1</translation>
    </message>
    <message>
        <source>Add a palette (a copy of the selected one)</source>
        <translation>Добавить палитру (копию выбранной)</translation>
    </message>
    <message>
        <source>Remove the selected palette</source>
        <translation>Удалить выбранную палитру</translation>
    </message>
    <message>
        <source>Add an image (a direction of the sprite)</source>
        <translation>Добавить изображение (направление спрайта)</translation>
    </message>
    <message>
        <source>Remove the selected image</source>
        <translation>Удалить выбранное изображение</translation>
    </message>
    <message>
        <source>Add a frame after the selected one, in every image</source>
        <translation>Добавить кадр после выбранного во всех изображениях</translation>
    </message>
    <message>
        <source>Remove the selected frame from every image</source>
        <translation>Удалить выбранный кадр из всех изображений</translation>
    </message>
</context>
<context>
    <name>ArtImageSource</name>
    <message>
        <source>Images (%1);;All files (*)</source>
        <translation>Рисунки (%1);;Все файлы (*)</translation>
    </message>
    <message>
        <source>%1 holds no pictures</source>
        <translation>в %1 нет рисунков</translation>
    </message>
</context>
<context>
    <name>ArtPreview</name>
    <message>
        <source>No frame</source>
        <translation>Нет кадра</translation>
    </message>
    <message>
        <source>Image %1 · action</source>
        <translation>Изображение %1 · действие</translation>
    </message>
    <message>
        <source>Image %1</source>
        <translation>Изображение %1</translation>
    </message>
</context>
<context>
    <name>ArtWidget</name>
    <message>
        <source>No art file open: double-click one in the list.</source>
        <translation>Файл графики не открыт: дважды щёлкните файл в списке.</translation>
    </message>
    <message>
        <source>Whether the file&apos;s header marks it as animated</source>
        <translation>Отмечен ли файл в заголовке как анимированный</translation>
    </message>
    <message>
        <source>Animated</source>
        <translation>Анимирован</translation>
    </message>
    <message>
        <source>Write the art file in place</source>
        <translation>Записать файл графики на место</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Write the art file under a new name and go on with that file</source>
        <translation>Записать файл графики под новым именем и продолжить работу с ним</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Сохранить как...</translation>
    </message>
    <message>
        <source>Edit palette %1</source>
        <translation>Изменить палитру %1</translation>
    </message>
    <message>
        <source>Add or delete image</source>
        <translation>Добавить или удалить изображение</translation>
    </message>
    <message>
        <source>Add or delete frame</source>
        <translation>Добавить или удалить кадр</translation>
    </message>
    <message>
        <source>Edit frame %1 of image %2</source>
        <translation>Изменить кадр %1 изображения %2</translation>
    </message>
    <message>
        <source>Arcanum Art files (*.art);;All files (*)</source>
        <translation>Файлы графики Arcanum (*.art);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Кадр</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Анимация</translation>
    </message>
    <message>
        <source>Import a folder of pictures</source>
        <translation>Импорт папки рисунков</translation>
    </message>
    <message>
        <source>Import image</source>
        <translation>Импорт рисунка</translation>
    </message>
    <message>
        <source>Nothing was imported: %1.</source>
        <translation>Ничего не импортировано: %1.</translation>
    </message>
    <message>
        <source>Nothing was imported: only a file of %1 images (directions) can have more than one frame each, and this one has %2.</source>
        <translation>Ничего не импортировано: больше одного кадра на изображение может быть только в файле из %1 изображений (направлений), а в этом их %2.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>The clipboard holds no picture.</source>
        <translation>В буфере обмена нет рисунка.</translation>
    </message>
    <message>
        <source>the clipboard</source>
        <translation>буфер обмена</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>Write every frame as a PNG with the selected palette, plus a JSON file that keeps the rest: importing the folder gives this file back</source>
        <translation>Записать каждый кадр в PNG с выбранной палитрой и файл JSON со всем остальным: импорт этой папки вернёт этот же файл</translation>
    </message>
    <message>
        <source>One PNG per frame…</source>
        <translation>По PNG на кадр…</translation>
    </message>
    <message>
        <source>One sprite sheet (images as rows, frames as columns)…</source>
        <translation>Один лист спрайтов (изображения — строки, кадры — столбцы)…</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Импорт…</translation>
    </message>
    <message>
        <source>Read a folder written by Export (its PNGs may have been edited) into this file</source>
        <translation>Прочитать в этот файл папку, записанную Экспортом (её PNG могли быть изменены)</translation>
    </message>
    <message>
        <source>Export art to folder</source>
        <translation>Экспорт графики в папку</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>без имени</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Nothing was exported: %1.</source>
        <translation>Ничего не экспортировано: %1.</translation>
    </message>
    <message>
        <source>%1 written to %2.</source>
        <translation>%1 записан в %2.</translation>
    </message>
    <message>
        <source>Import art folder</source>
        <translation>Импорт папки графики</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>New art from images</source>
        <translation>Новая графика из рисунков</translation>
    </message>
    <message>
        <source>No art file was made: %1.</source>
        <translation>Файл графики не создан: %1.</translation>
    </message>
    <message>
        <source>New art</source>
        <translation>Новая графика</translation>
    </message>
</context>
<context>
    <name>ConversationGraph</name>
    <message>
        <source>end</source>
        <translation>конец</translation>
    </message>
    <message>
        <source>game code %1</source>
        <translation>код игры %1</translation>
    </message>
</context>
<context>
    <name>ConversationView</name>
    <message>
        <source>NPC line</source>
        <translation>Реплика NPC</translation>
    </message>
    <message>
        <source>PC response</source>
        <translation>Ответ PC</translation>
    </message>
    <message>
        <source>end of conversation or game code</source>
        <translation>конец разговора или код игры</translation>
    </message>
    <message>
        <source>nothing leads here</source>
        <translation>сюда ничего не ведёт</translation>
    </message>
    <message>
        <source>leads to a missing line</source>
        <translation>ведёт к отсутствующей реплике</translation>
    </message>
    <message>
        <source>number used twice</source>
        <translation>номер использован дважды</translation>
    </message>
    <message>
        <source>line has problems</source>
        <translation>в реплике есть ошибки</translation>
    </message>
    <message>
        <source>line has notes (the game reads it)</source>
        <translation>у строки есть замечания (игра её читает)</translation>
    </message>
</context>
<context>
    <name>DamageBanner</name>
    <message>
        <source>%1 is damaged: %2</source>
        <translation>%1 повреждён: %2</translation>
    </message>
</context>
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;body style=&quot;font-family:&apos;DejaVu Sans&apos;;&quot;&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:16pt; font-weight:600;&quot;&gt;qtLoreka&lt;/p&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:12pt;&quot;&gt;Written by the qtLoreka developers&lt;/p&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:14pt;&quot;&gt;A visual editor for&lt;/p&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:14pt;&quot;&gt;Arcanum: of Steamworks and Magick Obscura&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;body style=&quot;font-family:&apos;DejaVu Sans&apos;;&quot;&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:16pt; font-weight:600;&quot;&gt;qtLoreka&lt;/p&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:12pt;&quot;&gt;Написано разработчиками qtLoreka&lt;/p&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:14pt;&quot;&gt;Визуальный редактор для&lt;/p&gt;
&lt;p align=&quot;center&quot; style=&quot;font-size:14pt;&quot;&gt;Arcanum: of Steamworks and Magick Obscura&lt;/p&gt;
&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Version: </source>
        <translation>Версия: </translation>
    </message>
    <message>
        <source>&lt;version&gt;</source>
        <translation>&lt;версия&gt;</translation>
    </message>
</context>
<context>
    <name>DialogEditPalette</name>
    <message>
        <source>Edit palette</source>
        <translation>Изменить палитру</translation>
    </message>
    <message>
        <source>Click a colour to change it</source>
        <translation>Щёлкните цвет, чтобы изменить его</translation>
    </message>
    <message>
        <source>&lt;view&gt;</source>
        <translation>&lt;вид&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Ctrl+V</source>
        <translation>Ctrl+V</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Arcanum .art Palettes (*.aap)</source>
        <translation>Палитры Arcanum .art (*.aap)</translation>
    </message>
    <message>
        <source>No frame to show</source>
        <translation>Нет кадра для показа</translation>
    </message>
    <message>
        <source>Save Palette</source>
        <translation>Сохранить палитру</translation>
    </message>
    <message>
        <source>Load Palette</source>
        <translation>Загрузить палитру</translation>
    </message>
    <message>
        <source>Save failed</source>
        <translation>Сохранение не удалось</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>Не удалось сохранить %1: %2</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Не удаётся открыть файл</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Не удалось открыть %1: %2</translation>
    </message>
    <message>
        <source>Index %1: red %2, green %3, blue %4%5</source>
        <translation>Индекс %1: красный %2, зелёный %3, синий %4%5</translation>
    </message>
    <message>
        <source> (not drawn: the game leaves it transparent)</source>
        <translation> (не рисуется: игра оставляет его прозрачным)</translation>
    </message>
</context>
<context>
    <name>DialogImportImage</name>
    <message>
        <source>Import image</source>
        <translation>Импорт рисунка</translation>
    </message>
    <message>
        <source>CIE94 colour difference between source and result: below 1 is hard to see, above 5 is plain to see</source>
        <translation>Цветовое различие CIE94 между источником и результатом: меньше 1 почти незаметно, больше 5 видно сразу</translation>
    </message>
    <message>
        <source>Which picture to look at</source>
        <translation>Какой рисунок показать</translation>
    </message>
    <message>
        <source>Picture </source>
        <translation>Рисунок </translation>
    </message>
    <message>
        <source> of %1</source>
        <translation> из %1</translation>
    </message>
    <message>
        <source>Dither (Floyd–Steinberg)</source>
        <translation>Смешение (Флойд — Стейнберг)</translation>
    </message>
    <message>
        <source>Mix neighbouring colours to come closer to shades the palette lacks</source>
        <translation>Смешивать соседние цвета, чтобы приблизиться к оттенкам, которых нет в палитре</translation>
    </message>
    <message>
        <source>Put the result into the art file</source>
        <translation>Поместить результат в файл графики</translation>
    </message>
    <message>
        <source>Leave the art file as it is</source>
        <translation>Оставить файл графики как есть</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Источник</translation>
    </message>
    <message>
        <source>In the art&apos;s palette</source>
        <translation>В палитре графики</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels</source>
        <translation>%1, %2 × %3 пикс.</translation>
    </message>
    <message>
        <source>Mean colour error %1 (this picture %2)</source>
        <translation>Средняя ошибка цвета %1 (у этого рисунка %2)</translation>
    </message>
    <message>
        <source>Mean colour error %1</source>
        <translation>Средняя ошибка цвета %1</translation>
    </message>
</context>
<context>
    <name>DialogNewStatement</name>
    <message>
        <source>Statement</source>
        <translation>Оператор</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Условие</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Code %1</source>
        <translation>Код %1</translation>
    </message>
</context>
<context>
    <name>DialogNumType</name>
    <message>
        <source>Number type</source>
        <translation>Тип числа</translation>
    </message>
    <message>
        <source>Where the number comes from</source>
        <translation>Откуда берётся число</translation>
    </message>
</context>
<context>
    <name>DialogOptions</name>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Arcanum base directory:</source>
        <translation>Папка игры Arcanum:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Скрипт</translation>
    </message>
    <message>
        <source>Confirm overwrite</source>
        <translation>Подтверждать перезапись</translation>
    </message>
    <message>
        <source>Confirm abandon</source>
        <translation>Подтверждать отказ от изменений</translation>
    </message>
    <message>
        <source>Allow export to Lua</source>
        <translation>Разрешить экспорт в Lua</translation>
    </message>
    <message>
        <source>Art</source>
        <translation>Графика</translation>
    </message>
    <message>
        <source>Allow export to .bin</source>
        <translation>Разрешить экспорт в .bin</translation>
    </message>
    <message>
        <source>Mes</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>Proto</source>
        <translation>Прототипы</translation>
    </message>
    <message>
        <source>Choose Arcanum base directory</source>
        <translation>Выберите папку игры Arcanum</translation>
    </message>
</context>
<context>
    <name>DialogProtoScript</name>
    <message>
        <source>Script</source>
        <translation>Скрипт</translation>
    </message>
    <message>
        <source>Script index</source>
        <translation>Номер скрипта</translation>
    </message>
    <message>
        <source>Counter0</source>
        <translation>Счётчик 0</translation>
    </message>
    <message>
        <source>Counter1</source>
        <translation>Счётчик 1</translation>
    </message>
    <message>
        <source>Counter2</source>
        <translation>Счётчик 2</translation>
    </message>
    <message>
        <source>Counter3</source>
        <translation>Счётчик 3</translation>
    </message>
    <message>
        <source>Flag bits</source>
        <translation>Биты флагов</translation>
    </message>
</context>
<context>
    <name>DialogSaveScript</name>
    <message>
        <source>Save script as</source>
        <translation>Сохранить скрипт как</translation>
    </message>
    <message>
        <source>The script&apos;s number, 1 to 99999: the game finds the script by it</source>
        <translation>Номер скрипта, от 1 до 99999: по нему игра находит скрипт</translation>
    </message>
    <message>
        <source>The rest of the file name, for people: what the script is for</source>
        <translation>Остальная часть имени файла, для людей: для чего этот скрипт</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Номер:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Файл:</translation>
    </message>
</context>
<context>
    <name>DialogueDocument</name>
    <message>
        <source>Saving in %1 would change %2 line(s) of the file that do not read cleanly in it (first: line %3).</source>
        <translation>Сохранение в %1 изменит строки файла, которые в ней не читаются без потерь: %2 (первая: строка %3).</translation>
    </message>
    <message>
        <source>line %1 (file line %2): %3</source>
        <translation>реплика %1 (строка файла %2): %3</translation>
    </message>
    <message>
        <source>%1 line(s) have problems and are kept as read until edited: %2</source>
        <translation>Строк с ошибками, сохраняемых как прочитаны, пока их не изменят: %1: %2</translation>
    </message>
    <message>
        <source>; and %1 more</source>
        <translation>; и ещё %1</translation>
    </message>
    <message>
        <source>the file could not be read as dialogue lines from file line %1 on; that part is not shown but is written back unchanged after the lines</source>
        <translation>начиная со строки файла %1 файл не читается как реплики диалога; эта часть не показана, но записывается без изменений после реплик</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no line number: a line number is a whole number from 0 to 2 147 483 647.</source>
        <translation>«%1» — не номер строки: номер строки — целое число от 0 до 2 147 483 647.</translation>
    </message>
    <message>
        <source>Line %1 is already in use.</source>
        <translation>Номер %1 уже занят.</translation>
    </message>
    <message>
        <source>Add NPC line %1</source>
        <translation>Добавить реплику NPC %1</translation>
    </message>
    <message>
        <source>Add PC response %1</source>
        <translation>Добавить ответ PC %1</translation>
    </message>
    <message>
        <source>Delete NPC line %1</source>
        <translation>Удалить реплику NPC %1</translation>
    </message>
    <message>
        <source>Delete PC response %1</source>
        <translation>Удалить ответ PC %1</translation>
    </message>
    <message>
        <source>Line %1 cannot become line 0: other lines lead to it, and a response line of 0 ends the conversation.</source>
        <translation>Строке %1 нельзя дать номер 0: на неё ведут другие строки, а строка ответа 0 завершает разговор.</translation>
    </message>
    <message>
        <source>There is no line %1.</source>
        <translation>Строки %1 нет.</translation>
    </message>
    <message>
        <source>Renumber line %1 to %2</source>
        <translation>Перенумеровать строку %1 в %2</translation>
    </message>
    <message>
        <source>Delete %1 lines</source>
        <translation>Удалить строки: %1</translation>
    </message>
</context>
<context>
    <name>DialogueEditWidget</name>
    <message>
        <source>Current file:</source>
        <translation>Текущий файл:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>(unsaved changes)</source>
        <translation>(несохранённые изменения)</translation>
    </message>
    <message>
        <source>Conversation graph</source>
        <translation>Граф разговора</translation>
    </message>
    <message>
        <source>Shows the whole conversation as a graph: where each line leads, and the lines nothing leads to, responses leading nowhere, duplicate numbers and lines with problems in colour. Click a box to open its line.</source>
        <translation>Показывает весь разговор в виде графа: куда ведёт каждая реплика; реплики, к которым ничего не ведёт, ответы в никуда, повторяющиеся номера и реплики с ошибками выделены цветом. Щёлкните блок, чтобы открыть его реплику.</translation>
    </message>
    <message>
        <source>Open file...</source>
        <translation>Открыть файл...</translation>
    </message>
    <message>
        <source>Opens a dialogue file (.dlg)</source>
        <translation>Открывает файл диалога (.dlg)</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Сохранить как...</translation>
    </message>
    <message>
        <source>Writes the dialogue to a file, in index order with Windows line ends, and opens that file</source>
        <translation>Записывает диалог в файл по порядку номеров с концами строк Windows и открывает этот файл</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Сортировать по</translation>
    </message>
    <message>
        <source>NPC lines</source>
        <translation>Реплики NPC</translation>
    </message>
    <message>
        <source>Shows the NPC lines, each with the PC responses that follow it</source>
        <translation>Показывает реплики NPC, каждую с последующими ответами PC</translation>
    </message>
    <message>
        <source>PC lines</source>
        <translation>Реплики PC</translation>
    </message>
    <message>
        <source>Shows the PC lines with the line each one leads to</source>
        <translation>Показывает реплики PC и реплику, к которой ведёт каждая</translation>
    </message>
    <message>
        <source>Double-click a line to edit it</source>
        <translation>Дважды щёлкните строку, чтобы изменить её</translation>
    </message>
    <message>
        <source>Response lines</source>
        <translation>Строки ответа</translation>
    </message>
    <message>
        <source>Response</source>
        <translation>Ответ</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Last Selected</source>
        <translation>Последняя выбранная</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>Double-click a line in a tree to edit it here.</source>
        <translation>Дважды щёлкните реплику в дереве, чтобы изменить её здесь.</translation>
    </message>
    <message>
        <source>Arcanum Dialogue files (*.dlg);;All files (*.*)</source>
        <translation>Файлы диалогов Arcanum (*.dlg);;Все файлы (*.*)</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>По размеру окна</translation>
    </message>
    <message>
        <source>Conversation: %1</source>
        <translation>Разговор: %1</translation>
    </message>
    <message>
        <source>Edit PC line %1</source>
        <translation>Изменить реплику PC %1</translation>
    </message>
    <message>
        <source>Edit NPC line %1</source>
        <translation>Изменить реплику NPC %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;NPC line %1&lt;/b&gt;</source>
        <translation>&lt;b&gt;Реплика NPC %1&lt;/b&gt;</translation>
    </message>
    <message>
        <source> — goes on with line %1</source>
        <translation> — продолжается репликой %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;PC line %1&lt;/b&gt;</source>
        <translation>&lt;b&gt;Реплика PC %1&lt;/b&gt;</translation>
    </message>
    <message>
        <source> — answered by NPC line %1: %2</source>
        <translation> — ответ: реплика NPC %1: %2</translation>
    </message>
    <message>
        <source> — response line %1 is no NPC line of this file</source>
        <translation> — строка ответа %1 не является репликой NPC этого файла</translation>
    </message>
    <message>
        <source>This line has problems:</source>
        <translation>В этой реплике есть ошибки:</translation>
    </message>
    <message>
        <source>You changed it, so it is saved from the form&apos;s fields.</source>
        <translation>Вы её изменили, поэтому она сохраняется из полей формы.</translation>
    </message>
    <message>
        <source>Until you change it, it is saved exactly as read:</source>
        <translation>Пока вы её не измените, она сохраняется в точности как прочитана:</translation>
    </message>
    <message>
        <source>Part of this file could not be read as dialogue lines, from &quot;%1&quot; on. It is not shown here, but saving writes it back unchanged after the lines.</source>
        <translation>Часть этого файла, начиная с «%1», не читается как реплики диалога. Здесь она не показана, но при сохранении записывается без изменений после реплик.</translation>
    </message>
    <message>
        <source>Go back to the line opened before this one</source>
        <translation>Вернуться к реплике, открытой перед этой</translation>
    </message>
    <message>
        <source>Go forward again after going back</source>
        <translation>Снова перейти вперёд после возврата</translation>
    </message>
    <message>
        <source>Notes (the game reads this line as it is):</source>
        <translation>Замечания (игра читает эту строку как есть):</translation>
    </message>
    <message>
        <source>Add NPC line</source>
        <translation>Добавить реплику NPC</translation>
    </message>
    <message>
        <source>Add an NPC line after the selected line</source>
        <translation>Добавить реплику NPC после выбранной строки</translation>
    </message>
    <message>
        <source>Add response</source>
        <translation>Добавить ответ</translation>
    </message>
    <message>
        <source>Add a PC response after the selected line</source>
        <translation>Добавить ответ PC после выбранной строки</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Delete the selected line (Del)</source>
        <translation>Удалить выбранную строку (Del)</translation>
    </message>
    <message>
        <source>Double-click to open line %1</source>
        <translation>Двойной щелчок открывает строку %1</translation>
    </message>
    <message>
        <source>Add PC response</source>
        <translation>Добавить ответ PC</translation>
    </message>
    <message>
        <source>Number of the new line (0 to 2 147 483 647, not in use):</source>
        <translation>Номер новой строки (от 0 до 2 147 483 647, не занятый):</translation>
    </message>
    <message>
        <source>Line %1 leads to line %2. Delete it anyway?</source>
        <translation>Строка %1 ведёт на строку %2. Всё равно удалить?</translation>
    </message>
    <message>
        <source>Lines %1 lead to line %2. Delete it anyway?</source>
        <translation>Строки %1 ведут на строку %2. Всё равно удалить?</translation>
    </message>
    <message>
        <source>Delete line</source>
        <translation>Удаление строки</translation>
    </message>
    <message>
        <source>Change line number</source>
        <translation>Изменение номера строки</translation>
    </message>
    <message>
        <source>Open line</source>
        <translation>Открытие строки</translation>
    </message>
    <message>
        <source>Line %1 is not in %2.</source>
        <translation>Строки %1 нет в %2.</translation>
    </message>
    <message>
        <source>Lines %1 lead to lines %2. Delete them anyway?</source>
        <translation>Строки %1 ведут на строки %2. Всё равно удалить их?</translation>
    </message>
    <message>
        <source>File encoding:</source>
        <translation>Кодировка файла:</translation>
    </message>
    <message>
        <source>PC %1: %2</source>
        <translation>PC %1: %2</translation>
    </message>
    <message>
        <source> — ends the conversation</source>
        <translation> — завершает разговор</translation>
    </message>
    <message>
        <source> — ends the conversation with game code %1</source>
        <translation> — завершает разговор игровым кодом %1</translation>
    </message>
    <message>
        <source>Line %1 leads to one of lines %2. Delete them anyway?</source>
        <translation>Строка %1 ведёт на одну из строк %2. Всё равно удалить их?</translation>
    </message>
    <message>
        <source>As line %1, line %2 would change which NPC line offers response %3. Renumber it anyway?</source>
        <translation>Под номером %1 строка %2 изменит, какая реплика NPC предлагает ответ %3. Всё равно перенумеровать?</translation>
    </message>
    <message>
        <source>As line %1, line %2 would change which NPC line offers responses %3. Renumber it anyway?</source>
        <translation>Под номером %1 строка %2 изменит, какая реплика NPC предлагает ответы %3. Всё равно перенумеровать?</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Легенда</translation>
    </message>
    <message>
        <source>Show or hide what the colours mean</source>
        <translation>Показать или скрыть, что означают цвета</translation>
    </message>
</context>
<context>
    <name>DialogueFile</name>
    <message>
        <source>Line doesn&apos;t contain 6 items</source>
        <translation>В строке не 6 полей</translation>
    </message>
    <message>
        <source>Line number %1</source>
        <translation>Номер строки %1</translation>
    </message>
    <message>
        <source>Tooltip text: TODO</source>
        <translation>Подсказка: пока нет</translation>
    </message>
    <message>
        <source>all genders</source>
        <translation>любой пол</translation>
    </message>
    <message>
        <source>male only</source>
        <translation>только мужчины</translation>
    </message>
    <message>
        <source>female only</source>
        <translation>только женщины</translation>
    </message>
    <message>
        <source>Invalid value: only 0, 1 or empty entry allowed</source>
        <translation>Неверное значение: допустимы только 0, 1 или пустое поле</translation>
    </message>
    <message>
        <source>Maximum: </source>
        <translation>Максимум: </translation>
    </message>
    <message>
        <source>Minimum: </source>
        <translation>Минимум: </translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Комментарий</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Gender or female line</source>
        <translation>Пол или реплика для женщины</translation>
    </message>
    <message>
        <source>Int. Test</source>
        <translation>Проверка интеллекта</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Условие</translation>
    </message>
    <message>
        <source>Response</source>
        <translation>Ответ</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>Invalid col. id</source>
        <translation>Неверный номер столбца</translation>
    </message>
</context>
<context>
    <name>DialogueProblemsPanel</name>
    <message>
        <source>error</source>
        <translation>ошибка</translation>
    </message>
    <message>
        <source>note</source>
        <translation>замечание</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>File line</source>
        <translation>Строка файла</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>&lt;b&gt;Problems:&lt;/b&gt; %1 error(s), %2 note(s)</source>
        <translation>&lt;b&gt;Проблемы:&lt;/b&gt; ошибок: %1, замечаний: %2</translation>
    </message>
    <message>
        <source>What loreka check reports for this file. Errors are what the game rejects; notes are what the game reads although a stricter reading objects. Click a row to open its line.</source>
        <translation>То, что сообщает loreka check об этом файле. Ошибки — то, что игра отвергает; замечания — то, что игра читает, хотя более строгое чтение возражает. Щёлкните строку, чтобы открыть её.</translation>
    </message>
</context>
<context>
    <name>DialogueTestsWidget</name>
    <message>
        <source>Opcode of this test or result</source>
        <translation>Код операции этой проверки или результата</translation>
    </message>
    <message>
        <source>Remove this row</source>
        <translation>Удалить эту строку</translation>
    </message>
    <message>
        <source>Add a row below this one</source>
        <translation>Добавить строку ниже этой</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2, without arguments</source>
        <translation>«%1»: %2, без аргументов</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: %2; arguments: %3</source>
        <translation>«%1»: %2; аргументы: %3</translation>
    </message>
</context>
<context>
    <name>DlgNpcLineEditWidget</name>
    <message>
        <source>Line number</source>
        <translation>Номер строки</translation>
    </message>
    <message>
        <source>Is generated dialogue</source>
        <translation>Генерируемый диалог</translation>
    </message>
    <message>
        <source>Shows the female variant and the response line of this line. It is ticked for a line that has either.</source>
        <translation>Показывает женский вариант и строку ответа этой реплики. Отмечено, если есть хотя бы одно из них.</translation>
    </message>
    <message>
        <source>Reset data</source>
        <translation>Сбросить данные</translation>
    </message>
    <message>
        <source>NOT implemented yet :(</source>
        <translation>Пока НЕ реализовано :(</translation>
    </message>
    <message>
        <source>Male line</source>
        <translation>Реплика для мужчины</translation>
    </message>
    <message>
        <source>What the character says (to every player without a female line)</source>
        <translation>Что говорит персонаж (любому игроку, если нет реплики для женщины)</translation>
    </message>
    <message>
        <source>different female line</source>
        <translation>другая реплика для женщины</translation>
    </message>
    <message>
        <source>Shows the text the character says to a female player instead</source>
        <translation>Показывает текст, который персонаж вместо этого говорит игроку-женщине</translation>
    </message>
    <message>
        <source>Female line</source>
        <translation>Реплика для женщины</translation>
    </message>
    <message>
        <source>What the character says to a female player</source>
        <translation>Что персонаж говорит игроку-женщине</translation>
    </message>
    <message>
        <source>Has Goto</source>
        <translation>Есть переход</translation>
    </message>
    <message>
        <source>The dialogue goes on with another line right after this one</source>
        <translation>Диалог сразу после этой реплики продолжается другой</translation>
    </message>
    <message>
        <source>Response line</source>
        <translation>Строка ответа</translation>
    </message>
    <message>
        <source>The line the dialogue goes on with</source>
        <translation>Реплика, которой продолжается диалог</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>Add Results</source>
        <translation>Добавить результаты</translation>
    </message>
    <message>
        <source>Adds a result at the top of the list; results happen when the character says this line</source>
        <translation>Добавляет результат в начало списка; результаты наступают, когда персонаж произносит эту реплику</translation>
    </message>
    <message>
        <source>The number of this line. Press Enter to change it: every line leading to it or naming it follows.</source>
        <translation>Номер этой строки. Нажмите Enter, чтобы изменить его: все строки, которые ведут на неё или называют её, изменятся вместе с ним.</translation>
    </message>
</context>
<context>
    <name>DlgPcLineEditWidget</name>
    <message>
        <source>Line number</source>
        <translation>Номер строки</translation>
    </message>
    <message>
        <source>Set original data</source>
        <translation>Вернуть исходные данные</translation>
    </message>
    <message>
        <source>Shows the line as it is stored again, dropping what you changed in this form since it was last applied</source>
        <translation>Снова показывает реплику в сохранённом виде, отбрасывая изменения в этой форме с последнего применения</translation>
    </message>
    <message>
        <source>Spoken text</source>
        <translation>Произносимый текст</translation>
    </message>
    <message>
        <source>What the player says</source>
        <translation>Что говорит игрок</translation>
    </message>
    <message>
        <source>Whether the player needs at least or at most this intelligence (a maximum is written as a negative number)</source>
        <translation>Нужен ли игроку интеллект не ниже или не выше этого (максимум записывается отрицательным числом)</translation>
    </message>
    <message>
        <source>Minimum intelligence</source>
        <translation>Минимальный интеллект</translation>
    </message>
    <message>
        <source>Maximum intelligence</source>
        <translation>Максимальный интеллект</translation>
    </message>
    <message>
        <source>Response line</source>
        <translation>Строка ответа</translation>
    </message>
    <message>
        <source>The NPC line that answers this response (0 usually ends the dialogue)</source>
        <translation>Реплика NPC, отвечающая на этот ответ (0 обычно завершает диалог)</translation>
    </message>
    <message>
        <source>Gender</source>
        <translation>Пол</translation>
    </message>
    <message>
        <source>Which player is offered this response</source>
        <translation>Какому игроку предлагается этот ответ</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Оба</translation>
    </message>
    <message>
        <source>Female</source>
        <translation>Женский</translation>
    </message>
    <message>
        <source>Male</source>
        <translation>Мужской</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Проверки</translation>
    </message>
    <message>
        <source>Add Requirements</source>
        <translation>Добавить условия</translation>
    </message>
    <message>
        <source>Adds a test at the top of the list; every test must hold for the response to be offered</source>
        <translation>Добавляет проверку в начало списка; ответ предлагается, только если выполнены все проверки</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>Add Consequences</source>
        <translation>Добавить последствия</translation>
    </message>
    <message>
        <source>Adds a result at the top of the list; results happen when the player chooses this response</source>
        <translation>Добавляет результат в начало списка; результаты наступают, когда игрок выбирает этот ответ</translation>
    </message>
    <message>
        <source>The number of this line. Press Enter to change it: every line leading to it or naming it follows.</source>
        <translation>Номер этой строки. Нажмите Enter, чтобы изменить его: все строки, которые ведут на неё или называют её, изменятся вместе с ним.</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>untitled</source>
        <translation>без имени</translation>
    </message>
    <message>
        <source>the file could not be written</source>
        <translation>файл не удалось записать</translation>
    </message>
</context>
<context>
    <name>EncodingBox</name>
    <message>
        <source>&lt;b&gt;File encoding&lt;/b&gt;&lt;br/&gt;The file is read and saved in this encoding, remembered for each file. Choosing another one reads the file again from disk, after asking about unsaved changes.</source>
        <translation>&lt;b&gt;Кодировка файла&lt;/b&gt;&lt;br/&gt;Файл читается и сохраняется в этой кодировке; выбор запоминается для каждого файла. Выбор другой кодировки перечитывает файл с диска, предварительно спросив о несохранённых изменениях.</translation>
    </message>
</context>
<context>
    <name>EncodingStrip</name>
    <message>
        <source>The file does not read cleanly in %1: %2 character(s) stand for bytes it cannot read (shown as %3 or as blanks), the first on line %4; saving would write them back changed.</source>
        <translation>Файл не читается без ошибок в кодировке %1: нечитаемых байтов заменено символами — %2 (они показаны как %3 или пробелы), первый в строке %4; при сохранении они будут записаны изменёнными.</translation>
    </message>
    <message>
        <source>No encoding of the game&apos;s languages reads it cleanly; pick one in the list.</source>
        <translation>Ни одна кодировка языков игры не читает его без ошибок; выберите кодировку в списке.</translation>
    </message>
    <message>
        <source>It reads cleanly in (the most likely first):</source>
        <translation>Без ошибок читается в (самая вероятная первой):</translation>
    </message>
    <message>
        <source>Reads the file again in %1 and remembers that for this file.</source>
        <translation>Перечитывает файл в кодировке %1 и запоминает её для этого файла.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Match case</source>
        <translation>С учётом регистра</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Слова целиком</translation>
    </message>
    <message>
        <source>Find in texts and comments</source>
        <translation>Найти в текстах и комментариях</translation>
    </message>
    <message>
        <source>&lt;b&gt;Find&lt;/b&gt;&lt;br/&gt;Looks through the texts and comments of this file. Enter finds the next match, Shift+Enter the one before, Escape closes the bar.</source>
        <translation>&lt;b&gt;Найти&lt;/b&gt;&lt;br/&gt;Ищет в текстах и комментариях этого файла. Enter находит следующее совпадение, Shift+Enter — предыдущее, Escape закрывает панель.</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Заменить на</translation>
    </message>
    <message>
        <source>&lt;b&gt;Replace with&lt;/b&gt;&lt;br/&gt;Written in place of each match, exactly as typed.</source>
        <translation>&lt;b&gt;Заменить на&lt;/b&gt;&lt;br/&gt;Пишется вместо каждого совпадения в точности как набрано.</translation>
    </message>
    <message>
        <source>Find only matches with the same capitals</source>
        <translation>Находить только совпадения с теми же заглавными буквами</translation>
    </message>
    <message>
        <source>Find only matches that are whole words, not parts of longer words</source>
        <translation>Находить только целые слова, а не части более длинных слов</translation>
    </message>
    <message>
        <source>What the last search or replacement found</source>
        <translation>Что нашёл последний поиск или замена</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Find the match before (Shift+Enter)</source>
        <translation>Найти предыдущее совпадение (Shift+Enter)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Find the next match (Enter)</source>
        <translation>Найти следующее совпадение (Enter)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Close the find bar (Escape)</source>
        <translation>Закрыть панель поиска (Escape)</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Replace the match shown, then find the next one</source>
        <translation>Заменить показанное совпадение и найти следующее</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Заменить все</translation>
    </message>
    <message>
        <source>Replace every match in the file as one undo step</source>
        <translation>Заменить все совпадения в файле одним шагом отмены</translation>
    </message>
</context>
<context>
    <name>FindInGameDialog</name>
    <message>
        <source>Find in game files</source>
        <translation>Поиск по файлам игры</translation>
    </message>
    <message>
        <source>Text of messages and dialogue lines</source>
        <translation>Текст сообщений и реплик диалогов</translation>
    </message>
    <message>
        <source>Number used as a global flag</source>
        <translation>Число как глобальный флаг</translation>
    </message>
    <message>
        <source>Number used as a global variable</source>
        <translation>Число как глобальная переменная</translation>
    </message>
    <message>
        <source>Number used as a script</source>
        <translation>Число как номер скрипта</translation>
    </message>
    <message>
        <source>Number used as a message or dialogue line</source>
        <translation>Число как номер сообщения или реплики</translation>
    </message>
    <message>
        <source>Number modes list dialogue tests and results, script statements and prototype script points that use the number</source>
        <translation>В режимах чисел перечисляются проверки и результаты диалогов, операторы скриптов и точки скриптов прототипов, где используется это число</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>С учётом &amp;регистра</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>Регулярное &amp;выражение</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Найти</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>File:line</source>
        <translation>Файл:строка</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Text or use</source>
        <translation>Текст или использование</translation>
    </message>
    <message>
        <source>Double-click a result, or press Enter, to open the file there</source>
        <translation>Дважды щёлкните результат или нажмите Enter, чтобы открыть файл в этом месте</translation>
    </message>
    <message>
        <source>&amp;Search for:</source>
        <translation>&amp;Искать:</translation>
    </message>
    <message>
        <source>&amp;Mode:</source>
        <translation>&amp;Режим:</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Искомый текст</translation>
    </message>
    <message>
        <source>A whole number, e.g. 42</source>
        <translation>Целое число, например 42</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number from -2147483648 to 2147483647.</source>
        <translation>«%1» — не целое число от -2147483648 до 2147483647.</translation>
    </message>
    <message>
        <source>Cannot search: %1</source>
        <translation>Поиск невозможен: %1</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Идёт поиск…</translation>
    </message>
    <message numerus="yes">
        <source>Cancelled after %n file(s): </source>
        <translation>
            <numerusform>Отменено после %n файла: </numerusform>
            <numerusform>Отменено после %n файлов: </numerusform>
            <numerusform>Отменено после %n файлов: </numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) searched: </source>
        <translation>
            <numerusform>Просмотрен %n файл: </numerusform>
            <numerusform>Просмотрено %n файла: </numerusform>
            <numerusform>Просмотрено %n файлов: </numerusform>
        </translation>
    </message>
    <message>
        <source>nothing found.</source>
        <translation>ничего не найдено.</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s).</source>
        <translation>
            <numerusform>%n результат.</numerusform>
            <numerusform>%n результата.</numerusform>
            <numerusform>%n результатов.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not read: %1</source>
        <translation>Не удалось прочитать: %1</translation>
    </message>
    <message>
        <source>Type the text to find.</source>
        <translation>Введите искомый текст.</translation>
    </message>
</context>
<context>
    <name>GameListing</name>
    <message>
        <source>In %1; a save writes a loose copy that overrides it</source>
        <translation>В %1; сохранение запишет отдельную копию, которая его заменит</translation>
    </message>
    <message>
        <source>Loose file in %1</source>
        <translation>Отдельный файл в %1</translation>
    </message>
</context>
<context>
    <name>GameWidget</name>
    <message>
        <source>Filter game files</source>
        <translation>Фильтр файлов игры</translation>
    </message>
    <message>
        <source>Show only the files whose path contains this text</source>
        <translation>Показывать только файлы, путь которых содержит этот текст</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Источник</translation>
    </message>
    <message>
        <source>The module whose archives and folder below modules/ are layered over the game&apos;s data</source>
        <translation>Модуль, чьи архивы и папка в modules/ накладываются на данные игры</translation>
    </message>
    <message>
        <source>Module:</source>
        <translation>Модуль:</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Open the selected file in the page of its kind</source>
        <translation>Открыть выбранный файл на странице его вида</translation>
    </message>
    <message>
        <source>Extract…</source>
        <translation>Извлечь…</translation>
    </message>
    <message>
        <source>Copy the selected files or folders out of the game</source>
        <translation>Скопировать выбранные файлы или папки из игры</translation>
    </message>
    <message>
        <source>Pack folder into archive…</source>
        <translation>Упаковать папку в архив…</translation>
    </message>
    <message>
        <source>Write every file below a folder into a new .dat archive</source>
        <translation>Записать все файлы из папки в новый архив .dat</translation>
    </message>
    <message>
        <source>%1 files in %2 layers, %3 overriding an earlier layer</source>
        <translation>Файлов: %1 в слоях: %2, заменяют файл более раннего слоя: %3</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Не удаётся открыть файл</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Extracting %1 files…</source>
        <translation>Извлечение файлов: %1…</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Извлечь</translation>
    </message>
    <message>
        <source>Extract to</source>
        <translation>Извлечь в</translation>
    </message>
    <message>
        <source>%1 files written below %2</source>
        <translation>Файлов записано в %2: %1</translation>
    </message>
    <message>
        <source>Folder to pack</source>
        <translation>Папка для упаковки</translation>
    </message>
    <message>
        <source>Save archive as</source>
        <translation>Сохранить архив как</translation>
    </message>
    <message>
        <source>Arcanum archives (*.dat)</source>
        <translation>Архивы Arcanum (*.dat)</translation>
    </message>
    <message>
        <source>Packing %1 files…</source>
        <translation>Упаковка файлов: %1…</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>Упаковать</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 не записан: %2</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>отменено</translation>
    </message>
</context>
<context>
    <name>HexWidget</name>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>File position of the selected byte</source>
        <translation>Позиция выбранного байта в файле</translation>
    </message>
</context>
<context>
    <name>LineToolsWidget</name>
    <message>
        <source>Move the line up</source>
        <translation>Переместить строку вверх</translation>
    </message>
    <message>
        <source>Delete the line</source>
        <translation>Удалить строку</translation>
    </message>
    <message>
        <source>Move the line down</source>
        <translation>Переместить строку вниз</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Pick a script in the list on the left, or open one with Ctrl+O.</source>
        <translation>Выберите скрипт в списке слева или откройте его по Ctrl+O.</translation>
    </message>
    <message>
        <source>Pick a message file in the tree on the left, or open one with Ctrl+O.</source>
        <translation>Выберите файл сообщений в дереве слева или откройте его по Ctrl+O.</translation>
    </message>
    <message>
        <source>Open a dialogue file with Ctrl+O; the game keeps them in data/dlg/.</source>
        <translation>Откройте файл диалога по Ctrl+O; игра хранит их в data/dlg/.</translation>
    </message>
    <message>
        <source>Pick an art file in the tree on the left, or open one with Ctrl+O.</source>
        <translation>Выберите файл графики в дереве слева или откройте его по Ctrl+O.</translation>
    </message>
    <message>
        <source>Pick a prototype in the list on the left, or open one with Ctrl+O.</source>
        <translation>Выберите прототип в списке слева или откройте его по Ctrl+O.</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Игра</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Открыть…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Сохранить &amp;как…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>&amp;Find file</source>
        <translation>&amp;Найти файл</translation>
    </message>
    <message>
        <source>&amp;Rescan files</source>
        <translation>П&amp;ересканировать файлы</translation>
    </message>
    <message>
        <source>File lists rescanned</source>
        <translation>Списки файлов обновлены</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>Undo history</source>
        <translation>История отмен</translation>
    </message>
    <message>
        <source>&lt;file as opened&gt;</source>
        <translation>&lt;файл как открыт&gt;</translation>
    </message>
    <message>
        <source>Undo &amp;history</source>
        <translation>&amp;История отмен</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Filter files (%1)</source>
        <translation>Фильтр файлов (%1)</translation>
    </message>
    <message>
        <source>Show only the files whose name contains this text</source>
        <translation>Показывать только файлы, имя которых содержит этот текст</translation>
    </message>
    <message>
        <source>MES</source>
        <translation>MES</translation>
    </message>
    <message>
        <source>RULES</source>
        <translation>RULES</translation>
    </message>
    <message>
        <source>SEMES</source>
        <translation>SEMES</translation>
    </message>
    <message>
        <source>OEMES</source>
        <translation>OEMES</translation>
    </message>
    <message>
        <source>DLG</source>
        <translation>DLG</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Палитра</translation>
    </message>
    <message>
        <source>%1 is inside %2: extract it from the Game tab to edit it.</source>
        <translation>%1 находится в %2: извлеките его на вкладке «Игра», чтобы изменить.</translation>
    </message>
    <message>
        <source>Cannot open file</source>
        <translation>Не удаётся открыть файл</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Не удалось открыть %1: %2</translation>
    </message>
    <message>
        <source>Palette %1</source>
        <translation>Палитра %1</translation>
    </message>
    <message>
        <source>Cannot open</source>
        <translation>Не удаётся открыть</translation>
    </message>
    <message>
        <source>%1: not a file qtLoreka edits (.mes, .dlg, .scr, .art, .pro)</source>
        <translation>%1: qtLoreka не редактирует такие файлы (.mes, .dlg, .scr, .art, .pro)</translation>
    </message>
    <message>
        <source>an archive</source>
        <translation>архив</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: нет такого файла</translation>
    </message>
    <message>
        <source>%1[*] — qtLoreka</source>
        <translation>%1[*] — qtLoreka</translation>
    </message>
    <message>
        <source>qtLoreka</source>
        <translation>qtLoreka</translation>
    </message>
    <message>
        <source>File changed on disk</source>
        <translation>Файл изменён на диске</translation>
    </message>
    <message>
        <source>%1 changed on disk. Reload and lose your changes?</source>
        <translation>%1 изменён на диске. Перечитать его и потерять ваши изменения?</translation>
    </message>
    <message>
        <source>%1 changed on disk and could not be read: %2</source>
        <translation>%1 изменён на диске и не может быть прочитан: %2</translation>
    </message>
    <message>
        <source>%1 was reloaded: it changed on disk</source>
        <translation>%1 перечитан: он изменился на диске</translation>
    </message>
    <message>
        <source>Recover unsaved work</source>
        <translation>Восстановить несохранённую работу</translation>
    </message>
    <message>
        <source>qtLoreka did not close cleanly. Unsaved changes of these files were kept:
%1

Restore them (they open modified, not saved) or discard them?</source>
        <translation>qtLoreka завершилась некорректно. Несохранённые изменения этих файлов сохранены:
%1

Восстановить их (они откроются изменёнными, но не сохранёнными) или отбросить?</translation>
    </message>
    <message>
        <source>Find in &amp;game files…</source>
        <translation>Поиск по &amp;файлам игры…</translation>
    </message>
    <message>
        <source>%1 is no longer in the game: rescan the files</source>
        <translation>%1 больше нет в игре: пересканируйте файлы</translation>
    </message>
    <message>
        <source>%1 has no entry %2 any more</source>
        <translation>В %1 больше нет записи %2</translation>
    </message>
    <message>
        <source>A&amp;rt</source>
        <translation>&amp;Графика</translation>
    </message>
    <message>
        <source>&amp;New art from images…</source>
        <translation>&amp;Новая графика из рисунков…</translation>
    </message>
</context>
<context>
    <name>MainWindowClass</name>
    <message>
        <source>qtLoreka</source>
        <translation>qtLoreka</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Скрипт</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Новый</translation>
    </message>
    <message>
        <source>Delete the selected script file</source>
        <translation>Удалить выбранный файл скрипта</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Mes</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Диалог</translation>
    </message>
    <message>
        <source>Art</source>
        <translation>Графика</translation>
    </message>
    <message>
        <source>Proto</source>
        <translation>Прототипы</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source> ? </source>
        <translation> ? </translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Настройка</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Ctrl+X</source>
        <translation>Ctrl+X</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>Ctrl+Del</source>
        <translation>Ctrl+Del</translation>
    </message>
    <message>
        <source>Not available: a new script starts from an open one with Save As…, which asks for its number and name</source>
        <translation>Недоступно: новый скрипт начинается с открытого через «Сохранить как…», который спрашивает его номер и имя</translation>
    </message>
</context>
<context>
    <name>MesDocument</name>
    <message>
        <source>1 line</source>
        <translation>1 строка</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>строк: %1</translation>
    </message>
    <message>
        <source>Saving in %1 would change %2 that were not edited: the file does not read cleanly in this encoding (first: line %3). Choose another encoding to keep them.</source>
        <translation>Сохранение в %1 изменит %2, которые вы не правили: файл не читается в этой кодировке без потерь (первая: строка %3). Выберите другую кодировку, чтобы сохранить их.</translation>
    </message>
    <message>
        <source>entry %1 (line %2): %3</source>
        <translation>запись %1 (строка %2): %3</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>и ещё %1</translation>
    </message>
    <message>
        <source>1 entry cannot be read and is kept as it is: </source>
        <translation>1 запись не читается и сохраняется как есть: </translation>
    </message>
    <message>
        <source>%1 entries cannot be read and are kept as they are: </source>
        <translation>Записей, которые не читаются и сохраняются как есть: %1: </translation>
    </message>
    <message>
        <source>“%1” is not a number.</source>
        <translation>«%1» — не число.</translation>
    </message>
    <message>
        <source>%1 is outside 0 … %2: a message file cannot hold that number.</source>
        <translation>%1 вне диапазона 0 … %2: такой номер в файле сообщений невозможен.</translation>
    </message>
    <message>
        <source>Number %1 is already in use in %2.</source>
        <translation>Номер %1 уже занят в %2.</translation>
    </message>
    <message>
        <source>Edit comment of %1</source>
        <translation>Изменить комментарий к %1</translation>
    </message>
    <message>
        <source>Edit text of %1</source>
        <translation>Изменить текст %1</translation>
    </message>
    <message>
        <source>Add entry %1</source>
        <translation>Добавить запись %1</translation>
    </message>
    <message>
        <source>Only an entry that could be read can be duplicated.</source>
        <translation>Дублировать можно только прочитанную запись.</translation>
    </message>
    <message>
        <source>Duplicate entry %1 as %2</source>
        <translation>Дублировать запись %1 как %2</translation>
    </message>
    <message>
        <source>Only an entry that could be read can be renumbered.</source>
        <translation>Перенумеровать можно только прочитанную запись.</translation>
    </message>
    <message>
        <source>Change number %1 to %2</source>
        <translation>Сменить номер %1 на %2</translation>
    </message>
    <message>
        <source>Delete %1 entries</source>
        <translation>Удалить записи (%1)</translation>
    </message>
    <message>
        <source>Delete entry %1</source>
        <translation>Удалить запись %1</translation>
    </message>
    <message>
        <source>Delete unreadable line %1</source>
        <translation>Удалить нечитаемую строку %1</translation>
    </message>
    <message>
        <source>Sort by number</source>
        <translation>Сортировать по номеру</translation>
    </message>
    <message>
        <source>Replace in %1</source>
        <translation>Замена в %1</translation>
    </message>
    <message>
        <source>Replace all “%1”</source>
        <translation>Заменить все «%1»</translation>
    </message>
</context>
<context>
    <name>MesTableModel</name>
    <message>
        <source>Line %1 cannot be read: %2. It is written back exactly as read.</source>
        <translation>Строку %1 не удалось прочитать: %2. Она записывается обратно в точности как прочитана.</translation>
    </message>
</context>
<context>
    <name>MesWidget</name>
    <message>
        <source>Form</source>
        <translation>Форма</translation>
    </message>
    <message>
        <source>&lt;b&gt;File header&lt;/b&gt;&lt;br/&gt;Everything above the first entry. It is written back as it stands here.</source>
        <translation>&lt;b&gt;Заголовок файла&lt;/b&gt;&lt;br/&gt;Всё, что выше первой записи. Записывается обратно так, как написано здесь.</translation>
    </message>
    <message>
        <source>File header (text above the first entry)</source>
        <translation>Заголовок файла (текст над первой записью)</translation>
    </message>
    <message>
        <source>&lt;b&gt;Cell text&lt;/b&gt;&lt;br/&gt;The text of the selected cell. Edit longer and multi-line texts here; the table follows as you type.</source>
        <translation>&lt;b&gt;Текст ячейки&lt;/b&gt;&lt;br/&gt;Текст выбранной ячейки. Длинные и многострочные тексты правьте здесь; таблица обновляется по мере ввода.</translation>
    </message>
    <message>
        <source>Select a cell to edit its text here</source>
        <translation>Выберите ячейку, чтобы изменить её текст здесь</translation>
    </message>
    <message>
        <source>&lt;b&gt;Source line&lt;/b&gt;&lt;br/&gt;The selected entry as it will be written to the file.</source>
        <translation>&lt;b&gt;Исходная строка&lt;/b&gt;&lt;br/&gt;Выбранная запись в том виде, в каком она будет записана в файл.</translation>
    </message>
    <message>
        <source>File encoding:</source>
        <translation>Кодировка файла:</translation>
    </message>
    <message>
        <source>Reload file</source>
        <translation>Перечитать файл</translation>
    </message>
    <message>
        <source>&lt;b&gt;Reload file&lt;/b&gt;&lt;br/&gt;Reads the file again from disk and drops every unsaved change.</source>
        <translation>&lt;b&gt;Перечитать файл&lt;/b&gt;&lt;br/&gt;Читает файл с диска заново и отбрасывает все несохранённые изменения.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>&lt;b&gt;Save&lt;/b&gt;&lt;br/&gt;Overwrites the file with the table, header and comments, using Windows line ends.</source>
        <translation>&lt;b&gt;Сохранить&lt;/b&gt;&lt;br/&gt;Перезаписывает файл таблицей, заголовком и комментариями с концами строк Windows.</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Сохранить как...</translation>
    </message>
    <message>
        <source>&lt;b&gt;Save As&lt;/b&gt;&lt;br/&gt;Writes the file under a new name and opens that file.</source>
        <translation>&lt;b&gt;Сохранить как&lt;/b&gt;&lt;br/&gt;Записывает файл под новым именем и открывает этот файл.</translation>
    </message>
    <message>
        <source>Arcanum Mes files (*.mes);;Arcanum Dialogue files (*.dlg);;All files (*)</source>
        <translation>Файлы сообщений Arcanum (*.mes);;Файлы диалогов Arcanum (*.dlg);;Все файлы (*)</translation>
    </message>
    <message>
        <source>&lt;b&gt;Source line&lt;/b&gt;&lt;br/&gt;This line could not be read (%1). It is written back exactly as read.</source>
        <translation>&lt;b&gt;Исходная строка&lt;/b&gt;&lt;br/&gt;Эту строку не удалось прочитать (%1). Она записывается обратно в точности как прочитана.</translation>
    </message>
    <message>
        <source>Edit header</source>
        <translation>Изменить заголовок</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Добавить…</translation>
    </message>
    <message>
        <source>Add an entry: the next free number is offered, any free one can be typed</source>
        <translation>Добавить запись: предлагается следующий свободный номер, можно ввести любой свободный</translation>
    </message>
    <message>
        <source>Duplicate…</source>
        <translation>Дублировать…</translation>
    </message>
    <message>
        <source>Copy the selected entry, text and comment, under a new number</source>
        <translation>Скопировать выбранную запись, текст и комментарий, под новым номером</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Delete the selected entries (one undo step)</source>
        <translation>Удалить выбранные записи (один шаг отмены)</translation>
    </message>
    <message>
        <source>Renumber…</source>
        <translation>Перенумеровать…</translation>
    </message>
    <message>
        <source>Give the selected entry another number; a number in use is refused (or double-click the number)</source>
        <translation>Дать выбранной записи другой номер; занятый номер не принимается (или дважды щёлкните номер)</translation>
    </message>
    <message>
        <source>Go to…</source>
        <translation>Перейти…</translation>
    </message>
    <message>
        <source>Select the entry with a number</source>
        <translation>Выбрать запись по номеру</translation>
    </message>
    <message>
        <source>Sort by number</source>
        <translation>Сортировать по номеру</translation>
    </message>
    <message>
        <source>Put the entries in number order, each with its comment lines (one undo step)</source>
        <translation>Расставить записи по номерам, каждую со строками её комментария (один шаг отмены)</translation>
    </message>
    <message>
        <source>Find…</source>
        <translation>Найти…</translation>
    </message>
    <message>
        <source>Find in the texts and comments of this file (%1 in the table)</source>
        <translation>Найти в текстах и комментариях этого файла (%1 в таблице)</translation>
    </message>
    <message>
        <source>Replace…</source>
        <translation>Заменить…</translation>
    </message>
    <message>
        <source>Find and replace in the texts and comments of this file (%1)</source>
        <translation>Найти и заменить в текстах и комментариях этого файла (%1)</translation>
    </message>
    <message>
        <source>What the last entry tool did</source>
        <translation>Что сделала последняя команда над записями</translation>
    </message>
    <message>
        <source>Add entry</source>
        <translation>Добавить запись</translation>
    </message>
    <message>
        <source>Number of the new entry:</source>
        <translation>Номер новой записи:</translation>
    </message>
    <message>
        <source>Entry %1 added</source>
        <translation>Запись %1 добавлена</translation>
    </message>
    <message>
        <source>Duplicate entry</source>
        <translation>Дублировать запись</translation>
    </message>
    <message>
        <source>Number of the copy of %1:</source>
        <translation>Номер копии записи %1:</translation>
    </message>
    <message>
        <source>Entry %1 copied as %2</source>
        <translation>Запись %1 скопирована как %2</translation>
    </message>
    <message>
        <source>1 entry deleted</source>
        <translation>Удалена 1 запись</translation>
    </message>
    <message>
        <source>%1 entries deleted</source>
        <translation>Удалено записей: %1</translation>
    </message>
    <message>
        <source>Renumber entry</source>
        <translation>Перенумеровать запись</translation>
    </message>
    <message>
        <source>New number of entry %1:</source>
        <translation>Новый номер записи %1:</translation>
    </message>
    <message>
        <source>Entry %1 is now %2</source>
        <translation>Запись %1 теперь %2</translation>
    </message>
    <message>
        <source>Go to entry</source>
        <translation>Перейти к записи</translation>
    </message>
    <message>
        <source>Number of the entry:</source>
        <translation>Номер записи:</translation>
    </message>
    <message>
        <source>%1 has no entry %2.</source>
        <translation>В %1 нет записи %2.</translation>
    </message>
    <message>
        <source>Entries sorted by number</source>
        <translation>Записи отсортированы по номеру</translation>
    </message>
    <message>
        <source>The entries are already in number order</source>
        <translation>Записи уже стоят по порядку номеров</translation>
    </message>
    <message>
        <source>No match for “%1”</source>
        <translation>Нет совпадений с «%1»</translation>
    </message>
    <message>
        <source>Entry %1 — matches in the file: %2</source>
        <translation>Запись %1 — совпадений в файле: %2</translation>
    </message>
    <message>
        <source>No match for “%1”: nothing replaced</source>
        <translation>Нет совпадений с «%1»: ничего не заменено</translation>
    </message>
    <message>
        <source>Matches replaced: %1; cells changed: %2</source>
        <translation>Заменено совпадений: %1; изменено ячеек: %2</translation>
    </message>
</context>
<context>
    <name>Mesfile</name>
    <message>
        <source>Entry contains no &apos;{&apos; or &apos;}&apos;</source>
        <translation>В записи нет «{» или «}»</translation>
    </message>
    <message>
        <source>Index could not be parsed</source>
        <translation>Не удалось разобрать номер</translation>
    </message>
    <message>
        <source>&apos;{&apos; at index %1 has no matching &apos;}&apos;</source>
        <translation>у «{» в позиции %1 нет парной «}»</translation>
    </message>
    <message>
        <source>Index: %1</source>
        <translation>Номер: %1</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Комментарий</translation>
    </message>
    <message>
        <source>Item 1</source>
        <translation>Предмет 1</translation>
    </message>
    <message>
        <source>Item %1</source>
        <translation>Предмет %1</translation>
    </message>
    <message>
        <source>Invalid col. id</source>
        <translation>Неверный номер столбца</translation>
    </message>
</context>
<context>
    <name>OpcodeWords</name>
    <message>
        <source>value</source>
        <translation>значение</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>Cannot open file</source>
        <translation>Не удаётся открыть файл</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Не удалось открыть %1: %2</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>%1 comes from %2. Saving writes it as a loose file in %3, which then overrides the archived copy. Save?</source>
        <translation>%1 взят из %2. Сохранение запишет его отдельным файлом в %3, который заменит копию из архива. Сохранить?</translation>
    </message>
    <message>
        <source>Overwrite %1?</source>
        <translation>Перезаписать %1?</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
</context>
<context>
    <name>PageFrame</name>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Сохранить как…</translation>
    </message>
    <message>
        <source>Write the open file in place (Ctrl+S)</source>
        <translation>Записать открытый файл на место (Ctrl+S)</translation>
    </message>
    <message>
        <source>Write the open file under another name (Ctrl+Shift+S)</source>
        <translation>Записать открытый файл под другим именем (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>No file open</source>
        <translation>Файл не открыт</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>ещё не сохранён</translation>
    </message>
    <message>
        <source>from %1; a save writes it to %2</source>
        <translation>из %1; сохранение запишет его в %2</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
</context>
<context>
    <name>PaletteFile</name>
    <message>
        <source>a palette file is %1 bytes long, this one %2%3</source>
        <translation>файл палитры занимает %1 байт, этот — %2%3</translation>
    </message>
</context>
<context>
    <name>ProtoDamagesWidget</name>
    <message>
        <source>Resistances</source>
        <translation>Сопротивления</translation>
    </message>
    <message>
        <source>Damage</source>
        <translation>Урон</translation>
    </message>
    <message>
        <source>Fire</source>
        <translation>Огонь</translation>
    </message>
    <message>
        <source>Electical</source>
        <translation>Электричество</translation>
    </message>
    <message>
        <source>Poison</source>
        <translation>Яд</translation>
    </message>
    <message>
        <source>Magic</source>
        <translation>Магия</translation>
    </message>
</context>
<context>
    <name>ProtoDocument</name>
    <message>
        <source>%1 (at byte %2)</source>
        <translation>%1 (на байте %2)</translation>
    </message>
    <message>
        <source>the prototype could not be written</source>
        <translation>прототип не удалось записать</translation>
    </message>
</context>
<context>
    <name>ProtoScriptsWidget</name>
    <message>
        <source>Scripts</source>
        <translation>Скрипты</translation>
    </message>
    <message>
        <source>The script this event runs and its counters; click to change them</source>
        <translation>Скрипт, запускаемый этим событием, и его счётчики; щёлкните, чтобы изменить</translation>
    </message>
    <message>
        <source>Whether the object runs a script when this event happens</source>
        <translation>Запускает ли объект скрипт при этом событии</translation>
    </message>
    <message>
        <source>Click to attach a script</source>
        <translation>Щёлкните, чтобы назначить скрипт</translation>
    </message>
    <message>
        <source>Script %1, counters %2, flags 0x%3. Click to change.</source>
        <translation>Скрипт %1, счётчики %2, флаги 0x%3. Щёлкните, чтобы изменить.</translation>
    </message>
</context>
<context>
    <name>ProtoWidget</name>
    <message>
        <source>Item index:</source>
        <translation>Номер предмета:</translation>
    </message>
    <message>
        <source>No item</source>
        <translation>Нет предмета</translation>
    </message>
    <message>
        <source>Item type:</source>
        <translation>Тип предмета:</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>Wall data (0)</source>
        <translation>Стена (0)</translation>
    </message>
    <message>
        <source>Static data</source>
        <translation>Статические данные</translation>
    </message>
    <message>
        <source>Internal index</source>
        <translation>Внутренний номер</translation>
    </message>
    <message>
        <source>Known index</source>
        <translation>Номер опознанного</translation>
    </message>
    <message>
        <source>Hit points</source>
        <translation>Очки здоровья</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Материал</translation>
    </message>
    <message>
        <source>Object flags</source>
        <translation>Флаги объекта</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Плоский</translation>
    </message>
    <message>
        <source>See through</source>
        <translation>Прозрачен для взгляда</translation>
    </message>
    <message>
        <source>Shoot through</source>
        <translation>Простреливается</translation>
    </message>
    <message>
        <source>No block</source>
        <translation>Не загораживает</translation>
    </message>
    <message>
        <source>Click through</source>
        <translation>Прозрачен для щелчков</translation>
    </message>
    <message>
        <source>Don&apos;t light</source>
        <translation>Не освещать</translation>
    </message>
    <message>
        <source>Invulnerable</source>
        <translation>Неуязвим</translation>
    </message>
    <message>
        <source>Illusion</source>
        <translation>Иллюзия</translation>
    </message>
    <message>
        <source>Stoned</source>
        <translation>Окаменел</translation>
    </message>
    <message>
        <source>Portal (1)</source>
        <translation>Портал (1)</translation>
    </message>
    <message>
        <source>No additional data.</source>
        <translation>Дополнительных данных нет.</translation>
    </message>
    <message>
        <source>Container (2)</source>
        <translation>Контейнер (2)</translation>
    </message>
    <message>
        <source>Scenery (3)</source>
        <translation>Декорация (3)</translation>
    </message>
    <message>
        <source>Trap (17)</source>
        <translation>Ловушка (17)</translation>
    </message>
    <message>
        <source>Movable data</source>
        <translation>Данные подвижного объекта</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Вес</translation>
    </message>
    <message>
        <source>Magickal weight</source>
        <translation>Магический вес</translation>
    </message>
    <message>
        <source>Worth</source>
        <translation>Цена</translation>
    </message>
    <message>
        <source>Mana store</source>
        <translation>Запас маны</translation>
    </message>
    <message>
        <source>Magick complexicy</source>
        <translation>Сложность магии</translation>
    </message>
    <message>
        <source>Effect index</source>
        <translation>Номер эффекта</translation>
    </message>
    <message>
        <source>Spells mana store</source>
        <translation>Запас маны заклинаний</translation>
    </message>
    <message>
        <source>Item flags</source>
        <translation>Флаги предмета</translation>
    </message>
    <message>
        <source>Identified</source>
        <translation>Опознан</translation>
    </message>
    <message>
        <source>Unsellable</source>
        <translation>Не продаётся</translation>
    </message>
    <message>
        <source>Is magickal</source>
        <translation>Магический</translation>
    </message>
    <message>
        <source>Transfer light</source>
        <translation>Передаёт свет</translation>
    </message>
    <message>
        <source>No display</source>
        <translation>Не отображать</translation>
    </message>
    <message>
        <source>No drop</source>
        <translation>Нельзя выбросить</translation>
    </message>
    <message>
        <source>Hexed</source>
        <translation>Проклят</translation>
    </message>
    <message>
        <source>Can use box</source>
        <translation>Может использовать ящик</translation>
    </message>
    <message>
        <source>Needs target</source>
        <translation>Нужна цель</translation>
    </message>
    <message>
        <source>Persistent</source>
        <translation>Постоянный</translation>
    </message>
    <message>
        <source>Stolen</source>
        <translation>Краденый</translation>
    </message>
    <message>
        <source>No decay</source>
        <translation>Не портится</translation>
    </message>
    <message>
        <source>Uber</source>
        <translation>Особый</translation>
    </message>
    <message>
        <source>No NPC pickup</source>
        <translation>NPC не подбирают</translation>
    </message>
    <message>
        <source>Projectile (4)</source>
        <translation>Снаряд (4)</translation>
    </message>
    <message>
        <source>Weapon (5)</source>
        <translation>Оружие (5)</translation>
    </message>
    <message>
        <source>Bonus to hit</source>
        <translation>Бонус к попаданию</translation>
    </message>
    <message>
        <source>Magickal bonus to hit</source>
        <translation>Магический бонус к попаданию</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Magickal speed</source>
        <translation>Магическая скорость</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Дальность</translation>
    </message>
    <message>
        <source>Magickal range</source>
        <translation>Магическая дальность</translation>
    </message>
    <message>
        <source>Minimum strengh required</source>
        <translation>Требуемая сила</translation>
    </message>
    <message>
        <source>Magickal minimum strengh required</source>
        <translation>Магическое требование к силе</translation>
    </message>
    <message>
        <source>Ammo type</source>
        <translation>Тип боеприпасов</translation>
    </message>
    <message>
        <source>Ammo usage</source>
        <translation>Расход боеприпасов</translation>
    </message>
    <message>
        <source>Critical hit</source>
        <translation>Критическое попадание</translation>
    </message>
    <message>
        <source>Magickal critical hit</source>
        <translation>Магическое критическое попадание</translation>
    </message>
    <message>
        <source>Critical hit magickal efficiency</source>
        <translation>Магическая сила критического попадания</translation>
    </message>
    <message>
        <source>Critical miss</source>
        <translation>Критический промах</translation>
    </message>
    <message>
        <source>Magickal critical miss</source>
        <translation>Магический критический промах</translation>
    </message>
    <message>
        <source>Weapon flags</source>
        <translation>Флаги оружия</translation>
    </message>
    <message>
        <source>Loud</source>
        <translation>Громкий</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Бесшумный</translation>
    </message>
    <message>
        <source>Two-handed</source>
        <translation>Двуручный</translation>
    </message>
    <message>
        <source>Hand count fixed</source>
        <translation>Число рук фиксировано</translation>
    </message>
    <message>
        <source>Throwable</source>
        <translation>Метательный</translation>
    </message>
    <message>
        <source>Boomerang</source>
        <translation>Бумеранг</translation>
    </message>
    <message>
        <source>Ammo (6)</source>
        <translation>Боеприпасы (6)</translation>
    </message>
    <message>
        <source>Armor (7)</source>
        <translation>Броня (7)</translation>
    </message>
    <message>
        <source>Armor class</source>
        <translation>Класс брони</translation>
    </message>
    <message>
        <source>Magickal armor class</source>
        <translation>Магический класс брони</translation>
    </message>
    <message>
        <source>Silent move</source>
        <translation>Бесшумное движение</translation>
    </message>
    <message>
        <source>Magickal silent move</source>
        <translation>Магическое бесшумное движение</translation>
    </message>
    <message>
        <source>Gold (8)</source>
        <translation>Золото (8)</translation>
    </message>
    <message>
        <source>Food (9)</source>
        <translation>Еда (9)</translation>
    </message>
    <message>
        <source>Scroll (10)</source>
        <translation>Свиток (10)</translation>
    </message>
    <message>
        <source>Key (11)</source>
        <translation>Ключ (11)</translation>
    </message>
    <message>
        <source>Keyring (12)</source>
        <translation>Связка ключей (12)</translation>
    </message>
    <message>
        <source>Schematic (13)</source>
        <translation>Схема (13)</translation>
    </message>
    <message>
        <source>Scroll type</source>
        <translation>Тип свитка</translation>
    </message>
    <message>
        <source>Starting line</source>
        <translation>Первая строка</translation>
    </message>
    <message>
        <source>Ending line</source>
        <translation>Последняя строка</translation>
    </message>
    <message>
        <source>Generic (14)</source>
        <translation>Разное (14)</translation>
    </message>
    <message>
        <source>NPC (15)</source>
        <translation>NPC (15)</translation>
    </message>
    <message>
        <source>Arcanum Proto (*.pro);;All files (*)</source>
        <translation>Прототипы Arcanum (*.pro);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Edit prototype</source>
        <translation>Изменить прототип</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>Изменить %1</translation>
    </message>
    <message>
        <source>Resistances</source>
        <translation>Сопротивления</translation>
    </message>
    <message>
        <source>Magickal resistances</source>
        <translation>Магические сопротивления</translation>
    </message>
    <message>
        <source>Minimal damages</source>
        <translation>Минимальный урон</translation>
    </message>
    <message>
        <source>Maximal damages</source>
        <translation>Максимальный урон</translation>
    </message>
    <message>
        <source>Magickal damages</source>
        <translation>Магический урон</translation>
    </message>
    <message>
        <source>Unknown bytes %1</source>
        <translation>Неизвестные байты %1</translation>
    </message>
    <message>
        <source>Unknown bytes %1 [%2]</source>
        <translation>Неизвестные байты %1 [%2]</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>the file could not be read</source>
        <translation>файл не удалось прочитать</translation>
    </message>
</context>
<context>
    <name>SaveGuard</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Несохранённые изменения</translation>
    </message>
    <message>
        <source>Save changes to %1?</source>
        <translation>Сохранить изменения в %1?</translation>
    </message>
    <message>
        <source>Save would change the file</source>
        <translation>Сохранение изменит файл</translation>
    </message>
    <message>
        <source>Save anyway?</source>
        <translation>Всё равно сохранить?</translation>
    </message>
    <message>
        <source>Save failed</source>
        <translation>Сохранение не удалось</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>Не удалось сохранить %1: %2</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Сохранить как</translation>
    </message>
</context>
<context>
    <name>ScriptDocument</name>
    <message>
        <source>a script&apos;s file name starts with its five-digit number (00042name.scr)</source>
        <translation>имя файла скрипта начинается с его пятизначного номера (00042name.scr)</translation>
    </message>
    <message>
        <source>the file is %1 bytes long, shorter than the %2-byte header</source>
        <translation>длина файла %1 байт — меньше заголовка в %2 байт</translation>
    </message>
    <message>
        <source>its header counts %1 lines</source>
        <translation>по заголовку в нём строк: %1</translation>
    </message>
    <message>
        <source>its header counts %1 lines (%2 bytes) but the file ends at byte %3: the lines from %4 on are missing</source>
        <translation>по заголовку в нём строк: %1 (%2 байт), но файл кончается на байте %3: строк начиная с %4 нет</translation>
    </message>
    <message>
        <source>its header counts %1 lines (%2 bytes) but the file holds %3 bytes: %4 bytes after the last line are not shown</source>
        <translation>по заголовку в нём строк: %1 (%2 байт), но в файле %3 байт: %4 байт после последней строки не показаны</translation>
    </message>
    <message>
        <source>line %1, condition %2</source>
        <translation>строка %1, условие %2</translation>
    </message>
    <message>
        <source>line %1, action %2</source>
        <translation>строка %1, действие %2</translation>
    </message>
    <message>
        <source>%1 of %2 lines hold statements no script uses (first: %3); the file is probably not a script</source>
        <translation>%1 из %2 строк содержат операторы, которых не бывает в скриптах (первая: %3); вероятно, это не скрипт</translation>
    </message>
    <message>
        <source>“%1” is not a number.</source>
        <translation>«%1» — не число.</translation>
    </message>
    <message>
        <source>%1 is outside 1 … %2: a script number has five digits.</source>
        <translation>%1 вне диапазона 1 … %2: номер скрипта состоит из пяти цифр.</translation>
    </message>
    <message>
        <source>Script number %1 is already in use.</source>
        <translation>Номер скрипта %1 уже занят.</translation>
    </message>
    <message>
        <source>“%1” cannot be a script&apos;s name: it must not be empty or hold any of \ / : * ? &quot; &lt; &gt; |.</source>
        <translation>«%1» не может быть именем скрипта: оно не должно быть пустым или содержать \ / : * ? &quot; &lt; &gt; |.</translation>
    </message>
</context>
<context>
    <name>ScriptSourceView</name>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Compile the source into the script, as one step that Undo takes back</source>
        <translation>Скомпилировать исходный текст в скрипт одним шагом, который отменяется командой «Отменить»</translation>
    </message>
    <message>
        <source>Write the source again from the script, dropping the edits</source>
        <translation>Заново записать исходный текст из скрипта, отбросив правки</translation>
    </message>
    <message>
        <source>Revert the source</source>
        <translation>Вернуть исходный текст</translation>
    </message>
    <message>
        <source>Drop the edits not applied to the script?</source>
        <translation>Отбросить правки, не применённые к скрипту?</translation>
    </message>
    <message>
        <source>the source is script %1 but the open file is script %2</source>
        <translation>исходный текст — скрипт %1, а открыт файл скрипта %2</translation>
    </message>
    <message>
        <source>Apply source</source>
        <translation>Применить исходный текст</translation>
    </message>
    <message>
        <source>Unapplied source</source>
        <translation>Неприменённый исходный текст</translation>
    </message>
    <message>
        <source>The source holds edits not yet applied to the script. Apply them first?</source>
        <translation>В исходном тексте есть правки, ещё не применённые к скрипту. Применить их сначала?</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Строка %1, столбец %2: %3</translation>
    </message>
    <message>
        <source>No script</source>
        <translation>Нет скрипта</translation>
    </message>
    <message>
        <source>The source does not compile; mistakes: %1</source>
        <translation>Текст не компилируется; ошибок: %1</translation>
    </message>
    <message>
        <source>The script changed since this source was written: Apply replaces those changes, Revert takes them</source>
        <translation>Скрипт изменился после того, как был записан этот текст: «Применить» заменит те изменения, «Вернуть» примет их</translation>
    </message>
    <message>
        <source>Edited: Apply compiles the source into the script</source>
        <translation>Изменено: «Применить» скомпилирует текст в скрипт</translation>
    </message>
    <message>
        <source>The source of the script as it stands</source>
        <translation>Исходный текст скрипта в его нынешнем виде</translation>
    </message>
</context>
<context>
    <name>ScriptWidget</name>
    <message>
        <source>Script</source>
        <translation>Скрипт</translation>
    </message>
    <message>
        <source>Script number (from the file name)</source>
        <translation>Номер скрипта (из имени файла)</translation>
    </message>
    <message>
        <source>No script</source>
        <translation>Нет скрипта</translation>
    </message>
    <message>
        <source>Description (up to 40 characters)</source>
        <translation>Описание (до 40 символов)</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Append a line that always runs an action</source>
        <translation>Добавить в конец строку, которая всегда выполняет действие</translation>
    </message>
    <message>
        <source>DO</source>
        <translation>DO</translation>
    </message>
    <message>
        <source>Append a line with a condition and two actions</source>
        <translation>Добавить в конец строку с условием и двумя действиями</translation>
    </message>
    <message>
        <source>IF</source>
        <translation>IF</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>RO</source>
        <translation>RO</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Arcanum scripts (*.scr);;All files (*)</source>
        <translation>Скрипты Arcanum (*.scr);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Add IF line</source>
        <translation>Добавить строку IF</translation>
    </message>
    <message>
        <source>Add DO line</source>
        <translation>Добавить строку DO</translation>
    </message>
    <message>
        <source>Edit description</source>
        <translation>Изменить описание</translation>
    </message>
    <message>
        <source>Move line %1 up</source>
        <translation>Переместить строку %1 вверх</translation>
    </message>
    <message>
        <source>Move line %1 down</source>
        <translation>Переместить строку %1 вниз</translation>
    </message>
    <message>
        <source>Delete line %1</source>
        <translation>Удалить строку %1</translation>
    </message>
    <message>
        <source>Change statement of line %1</source>
        <translation>Изменить оператор строки %1</translation>
    </message>
    <message>
        <source>Edit operand of line %1</source>
        <translation>Изменить операнд строки %1</translation>
    </message>
    <message>
        <source>Write the script in place (Ctrl+S)</source>
        <translation>Записать скрипт на место (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save script as</source>
        <translation>Сохранить скрипт как</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Исходный текст</translation>
    </message>
    <message>
        <source>The script as text: edit, check and apply it</source>
        <translation>Скрипт как текст: правка, проверка и применение</translation>
    </message>
</context>
<context>
    <name>SourceFindBar</name>
    <message>
        <source>Find</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Заменить на</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Предыдущее</translation>
    </message>
    <message>
        <source>Find the previous place (Shift+Enter)</source>
        <translation>Найти предыдущее место (Shift+Enter)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Следующее</translation>
    </message>
    <message>
        <source>Find the next place (Enter)</source>
        <translation>Найти следующее место (Enter)</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Replace the found text and find the next</source>
        <translation>Заменить найденное и найти следующее</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Заменить все</translation>
    </message>
    <message>
        <source>Replace every place at once</source>
        <translation>Заменить все места сразу</translation>
    </message>
    <message>
        <source>Close (Escape)</source>
        <translation>Закрыть (Escape)</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Не найдено</translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>Заменено: %n</numerusform>
            <numerusform>Заменено: %n</numerusform>
            <numerusform>Заменено: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TextDecoding</name>
    <message>
        <source>Line %1 cannot be read in %2 without change.</source>
        <translation>Строку %1 нельзя прочитать в %2 без изменений.</translation>
    </message>
    <message>
        <source>Line %1 and %2 more lines cannot be read in %3 without change.</source>
        <translation>Строку %1 и ещё строк: %2 нельзя прочитать в %3 без изменений.</translation>
    </message>
</context>
<context>
    <name>TokensWidget</name>
    <message>
        <source>Double-click to choose another statement</source>
        <translation>Дважды щёлкните, чтобы выбрать другой оператор</translation>
    </message>
    <message>
        <source>&lt;line&gt;</source>
        <translation>&lt;строка&gt;</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>строка %1</translation>
    </message>
</context>
<context>
    <name>ToolTipFiller</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: checked sets it, unchecked clears it</source>
        <translation>%1: отметка устанавливает, снятие отметки сбрасывает</translation>
    </message>
    <message>
        <source>%1: a whole number from %2 to %3</source>
        <translation>%1: целое число от %2 до %3</translation>
    </message>
    <message>
        <source>%1: a number from %2 to %3</source>
        <translation>%1: число от %2 до %3</translation>
    </message>
    <message>
        <source>%1: one of the values the game knows (type to jump to one)</source>
        <translation>%1: одно из значений, известных игре (наберите текст, чтобы перейти к нему)</translation>
    </message>
</context>
<context>
    <name>arcanum::DatArchive</name>
    <message>
        <source>not an archive: %1 bytes are too few for its trailer</source>
        <translation>не архив: %1 байт мало для его концевика</translation>
    </message>
    <message>
        <source>not an archive: the file does not end in an archive trailer</source>
        <translation>не архив: файл не кончается концевиком архива</translation>
    </message>
    <message>
        <source>the trailer gives a directory of %1 bytes, which does not fit the %2-byte file</source>
        <translation>концевик указывает каталог в %1 байт, который не помещается в файл размером %2 байт</translation>
    </message>
    <message>
        <source>the directory&apos;s own position (%1) lies outside the file</source>
        <translation>собственная позиция каталога (%1) лежит вне файла</translation>
    </message>
    <message>
        <source>the directory at byte %1 is too short for its count</source>
        <translation>каталог на байте %1 короче, чем требует его счётчик</translation>
    </message>
    <message>
        <source>the directory counts %1 entries, more than its %2 bytes can hold</source>
        <translation>в каталоге записей: %1 — больше, чем вмещают его %2 байт</translation>
    </message>
    <message>
        <source>the directory ends inside entry %1</source>
        <translation>каталог кончается внутри записи %1</translation>
    </message>
    <message>
        <source>the name of entry %1 (at byte %2) runs past the directory&apos;s end</source>
        <translation>имя записи %1 (на байте %2) выходит за конец каталога</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 — это папка</translation>
    </message>
    <message>
        <source>%1 lies outside the archive&apos;s data (bytes %2 to %3)</source>
        <translation>%1 лежит вне данных архива (байты с %2 по %3)</translation>
    </message>
    <message>
        <source>%1 claims %2 bytes from %3 packed ones, more than a zlib stream can hold</source>
        <translation>%1 заявляет %2 байт из %3 сжатых — больше, чем может вместить поток zlib</translation>
    </message>
    <message>
        <source>%1 could not be read</source>
        <translation>не удалось прочитать %1</translation>
    </message>
    <message>
        <source>%1: the zlib stream is damaged or does not inflate to its %2 bytes</source>
        <translation>%1: поток zlib повреждён или не распаковывается в свои %2 байт</translation>
    </message>
    <message>
        <source>an empty name</source>
        <translation>пустое имя</translation>
    </message>
    <message>
        <source>a NUL inside the name</source>
        <translation>NUL внутри имени</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>абсолютный путь</translation>
    </message>
    <message>
        <source>a drive letter</source>
        <translation>букву диска</translation>
    </message>
    <message>
        <source>a &quot;..&quot; that leads out of the folder</source>
        <translation>«..», ведущее за пределы папки</translation>
    </message>
    <message>
        <source>%1: the name holds %2</source>
        <translation>%1: имя содержит %2</translation>
    </message>
    <message>
        <source>%1: the name is used again (first as entry %2)</source>
        <translation>%1: имя использовано повторно (впервые в записи %2)</translation>
    </message>
    <message>
        <source>%1: out of order, the engine&apos;s search will not find it</source>
        <translation>%1: не по порядку, поиск движка его не найдёт</translation>
    </message>
    <message>
        <source>%1: flags 0x%2 are neither stored nor compressed</source>
        <translation>%1: флаги 0x%2 — ни «без сжатия», ни «сжато»</translation>
    </message>
</context>
<context>
    <name>arcanum::DatWriter</name>
    <message>
        <source>%1: the name holds %2</source>
        <translation>%1: имя содержит %2</translation>
    </message>
    <message>
        <source>%1: the name is given twice (letter case aside)</source>
        <translation>%1: имя указано дважды (без учёта регистра)</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>отменено</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Editor for the data files of Arcanum</source>
        <translation>Редактор файлов данных Arcanum</translation>
    </message>
    <message>
        <source>Files to open (.mes, .dlg, .scr, .art, .pro).</source>
        <translation>Файлы для открытия (.mes, .dlg, .scr, .art, .pro).</translation>
    </message>
</context>
<context>
    <name>token_controls::TokenEditorNum</name>
    <message>
        <source>Where the number comes from; click to change</source>
        <translation>Откуда берётся число; щёлкните, чтобы изменить</translation>
    </message>
    <message>
        <source>The number, or what it selects of the source on the left</source>
        <translation>Число или то, что оно выбирает из источника слева</translation>
    </message>
</context>
<context>
    <name>token_controls::TokenEditorObj</name>
    <message>
        <source>The object the statement tests or acts on</source>
        <translation>Объект, который оператор проверяет или на который действует</translation>
    </message>
</context>
</TS>
