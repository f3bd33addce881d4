<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Turn the moments of a video into still pictures with their captions.</source>
        <translation>Convierte los momentos de un vídeo en imágenes fijas con sus subtítulos.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>AutoCaptionFlow</name>
    <message>
        <source>The speech service gave an answer that cannot be read.</source>
        <translation>El servicio de reconocimiento de voz ha dado una respuesta que no se puede leer.</translation>
    </message>
    <message>
        <source>No speech found</source>
        <translation>No se ha encontrado voz</translation>
    </message>
    <message>
        <source>No words were recognised in this video&apos;s sound track. Check the caption language, or add a subtitle file instead.</source>
        <translation>No se ha reconocido ninguna palabra en la pista de audio de este vídeo. Compruebe el idioma de los subtítulos o añada un archivo de subtítulos.</translation>
    </message>
    <message>
        <source>The sound track could not be extracted from the video. It may have no audio, or ffmpeg is missing.</source>
        <translation>No se ha podido extraer la pista de audio del vídeo. Puede que no tenga audio o que falte ffmpeg.</translation>
    </message>
    <message>
        <source>Generating captions...</source>
        <translation>Generando subtítulos...</translation>
    </message>
    <message>
        <source>Automatic captions failed</source>
        <translation>Error al generar los subtítulos automáticos</translation>
    </message>
    <message>
        <source>The speech service could not be reached.</source>
        <translation>No se pudo conectar con el servicio de reconocimiento de voz.</translation>
    </message>
</context>
<context>
    <name>CaptionDock</name>
    <message>
        <source>Captions</source>
        <translation>Subtítulos</translation>
    </message>
</context>
<context>
    <name>CaptionFileFlow</name>
    <message>
        <source>Open local subtitle</source>
        <translation>Abrir subtítulos locales</translation>
    </message>
    <message>
        <source>Subtitle Files</source>
        <translation>Archivos de subtítulos</translation>
    </message>
    <message>
        <source>The subtitle file could not be converted.</source>
        <translation>No se ha podido convertir el archivo de subtítulos.</translation>
    </message>
    <message>
        <source>%1 holds no captions that can be shown.</source>
        <translation>%1 no contiene subtítulos que se puedan mostrar.</translation>
    </message>
    <message>
        <source>No captions loaded</source>
        <translation>No se han cargado subtítulos</translation>
    </message>
    <message>
        <source>Reading the captions of %1…</source>
        <translation>Leyendo los subtítulos de %1…</translation>
    </message>
    <message>
        <source>Converting %1…</source>
        <translation>Convirtiendo %1…</translation>
    </message>
    <message>
        <source>Some captions were not loaded</source>
        <translation>Algunos subtítulos no se cargaron</translation>
    </message>
    <message>
        <source>%1 of the %2 captions in %3 could not be read; the other %4 were loaded.</source>
        <translation>No se pudieron leer %1 de los %2 subtítulos de %3; se cargaron los otros %4.</translation>
    </message>
</context>
<context>
    <name>CaptionFileReader</name>
    <message>
        <source>&quot;%1&quot; holds more than %2 captions. To keep memory in bounds, at most %2 captions are loaded from one file: split it into parts.</source>
        <translation>«%1» contiene más de %2 subtítulos. Para no agotar la memoria, se cargan como máximo %2 subtítulos de un archivo: divídalo en partes.</translation>
    </message>
</context>
<context>
    <name>CaptionItem</name>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>Inglés (EE. UU.)</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>Chino simplificado</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>Cantonés</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>Japonés</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>Ruso</translation>
    </message>
    <message>
        <source>No subtitle file was chosen.</source>
        <translation>No se ha elegido ningún archivo de subtítulos.</translation>
    </message>
    <message>
        <source>No captions were found in &quot;%1&quot;.</source>
        <translation>No se han encontrado subtítulos en «%1».</translation>
    </message>
    <message>
        <source>Captions are saved as .srt or .ass files; &quot;%1&quot; is neither.</source>
        <translation>Los subtítulos se guardan como archivos .srt o .ass; «%1» no es ninguno de ellos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>No se pudo escribir «%1»: %2</translation>
    </message>
</context>
<context>
    <name>CaptionSaveFlow</name>
    <message>
        <source>Save captions</source>
        <translation>Guardar subtítulos</translation>
    </message>
    <message>
        <source>Save captions as...</source>
        <translation>Guardar subtítulos como...</translation>
    </message>
    <message>
        <source>captions</source>
        <translation>subtitulos</translation>
    </message>
    <message>
        <source>SubRip subtitles (*.srt)</source>
        <translation>Subtítulos SubRip (*.srt)</translation>
    </message>
    <message>
        <source>ASS subtitles (*.ass)</source>
        <translation>Subtítulos ASS (*.ass)</translation>
    </message>
    <message>
        <source>The captions were not saved</source>
        <translation>Los subtítulos no se guardaron</translation>
    </message>
</context>
<context>
    <name>CaptionStyleBar</name>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borde</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Aplicar a todos</translation>
    </message>
    <message>
        <source>Apply size, position and border to every caption</source>
        <translation>Aplicar el tamaño, la posición y el borde a todos los subtítulos</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capturar</translation>
    </message>
    <message>
        <source>Include this caption in &quot;Capture selected&quot;</source>
        <translation>Incluir este subtítulo en «Capturar seleccionados»</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Editar texto</translation>
    </message>
    <message>
        <source>Edit the caption on the video (or double-click it)</source>
        <translation>Editar el subtítulo sobre el vídeo (o hacer doble clic en él)</translation>
    </message>
    <message>
        <source>Add caption</source>
        <translation>Añadir subtítulo</translation>
    </message>
    <message>
        <source>Add a caption at the current position</source>
        <translation>Añadir un subtítulo en la posición actual</translation>
    </message>
</context>
<context>
    <name>CaptionWidget</name>
    <message>
        <source>search text</source>
        <translation>buscar texto</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Popup</source>
        <translation>Separar</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar todo</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Capturar marcados</translation>
    </message>
    <message>
        <source>Auto captions</source>
        <translation>Subtítulos automáticos</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Add local subtitle</source>
        <translation>Añadir subtítulos locales</translation>
    </message>
    <message>
        <source>No captions yet. Generate them from the video&apos;s speech, create one at the current time, or add a subtitle file.</source>
        <translation>Aún no hay subtítulos. Genérelos a partir del audio del vídeo, cree uno en el momento actual o añada un archivo de subtítulos.</translation>
    </message>
    <message>
        <source>Captions (%1)</source>
        <translation>Subtítulos (%1)</translation>
    </message>
    <message>
        <source>Select all (%1/%2)</source>
        <translation>Marcar todo (%1/%2)</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Borrar subtítulos</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln captions?</source>
        <translation>
            <numerusform>¿Quitar %Ln subtítulo?</numerusform>
            <numerusform>¿Quitar los %Ln subtítulos?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>%1 – needs a speech server</source>
        <translation>%1 – necesita un servidor de voz</translation>
    </message>
</context>
<context>
    <name>CaptureController</name>
    <message>
        <source>Capture failed</source>
        <translation>Error en la captura</translation>
    </message>
    <message>
        <source>The player did not reach the requested moment.</source>
        <translation>El reproductor no ha llegado al momento solicitado.</translation>
    </message>
    <message>
        <source>Capturing images</source>
        <translation>Capturando imágenes</translation>
    </message>
    <message>
        <source>The frame could not be captured from the player.</source>
        <translation>No se ha podido capturar el fotograma del reproductor.</translation>
    </message>
    <message>
        <source>Applying current style</source>
        <translation>Aplicando el estilo actual</translation>
    </message>
    <message>
        <source>Nothing to capture</source>
        <translation>Nada que capturar</translation>
    </message>
    <message>
        <source>Open a video first, then capture its frames.</source>
        <translation>Abra primero un vídeo y luego capture sus fotogramas.</translation>
    </message>
    <message>
        <source>No caption ticked</source>
        <translation>Ningún subtítulo marcado</translation>
    </message>
    <message>
        <source>Tick the captions whose moments you want in the caption list, then press Capture checked again.</source>
        <translation>Marque en la lista los subtítulos cuyos momentos desea y vuelva a pulsar Capturar marcados.</translation>
    </message>
</context>
<context>
    <name>CheckUpdateDialog</name>
    <message>
        <source>Version: %1</source>
        <translation>Versión: %1</translation>
    </message>
    <message>
        <source>Release date: %1</source>
        <translation>Fecha de publicación: %1</translation>
    </message>
    <message>
        <source>Size: %1</source>
        <translation>Tamaño: %1</translation>
    </message>
    <message>
        <source>Check for update</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Your current use is already the latest version.</source>
        <translation>Ya está usando la versión más reciente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>A new version is available</source>
        <translation>Hay una nueva versión disponible</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Recordármelo más tarde</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Actualizar ahora</translation>
    </message>
    <message>
        <source>The version information could not be read.</source>
        <translation>No se ha podido leer la información de la versión.</translation>
    </message>
    <message>
        <source>Could not check for updates. Please check your network connection and try again.
%1</source>
        <translation>No se han podido buscar actualizaciones. Compruebe su conexión de red e inténtelo de nuevo.
%1</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>The captions have changes that were not saved.</source>
        <translation>Los subtítulos tienen cambios sin guardar.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln captured frames were never exported and will be lost.</source>
        <translation>
            <numerusform>%Ln fotograma capturado nunca se exportó y se perderá.</numerusform>
            <numerusform>%Ln fotogramas capturados nunca se exportaron y se perderán.</numerusform>
        </translation>
    </message>
    <message>
        <source>Close Glimmer</source>
        <translation>Cerrar Glimmer</translation>
    </message>
    <message>
        <source>Save captions</source>
        <translation>Guardar subtítulos</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Cerrar de todos modos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>DownloadManager</name>
    <message>
        <source>The download tool could not be started: %1</source>
        <translation>No se ha podido iniciar la herramienta de descarga: %1</translation>
    </message>
    <message>
        <source>The downloaded file could not be opened: %1</source>
        <translation>No se ha podido abrir el archivo descargado: %1</translation>
    </message>
    <message>
        <source>The download tool stopped before the download was complete.</source>
        <translation>La herramienta de descarga se detuvo antes de completar la descarga.</translation>
    </message>
</context>
<context>
    <name>ExportNotice</name>
    <message numerus="yes">
        <source>Saved %n picture(s) to %1</source>
        <translation>
            <numerusform>%n imagen guardada en %1</numerusform>
            <numerusform>%n imágenes guardadas en %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output folder %1 cannot be written.</source>
        <translation>No se puede escribir en la carpeta de salida %1.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>No se ha podido leer el archivo de audio extraído.</translation>
    </message>
    <message>
        <source>The video has no sound that could be extracted.</source>
        <translation>El vídeo no tiene sonido que se pueda extraer.</translation>
    </message>
    <message>
        <source>The speech service could not be reached: %1</source>
        <translation>No se pudo conectar con el servicio de reconocimiento de voz: %1</translation>
    </message>
</context>
<context>
    <name>ImageExporter</name>
    <message>
        <source>No picture was exported.</source>
        <translation>No se ha exportado ninguna imagen.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were exported, but some failed.</source>
        <translation>
            <numerusform>Se ha exportado %n imagen, pero otras han fallado.</numerusform>
            <numerusform>Se han exportado %n imágenes, pero otras han fallado.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageItem</name>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>ImageListViewDialog</name>
    <message>
        <source>Captured frames</source>
        <translation>Fotogramas capturados</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Eliminar todo</translation>
    </message>
</context>
<context>
    <name>ImageViewDialog</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
</context>
<context>
    <name>ImagesWidget</name>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>List view</source>
        <translation>Vista de lista</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar todo</translation>
    </message>
    <message>
        <source>Apply Current Style</source>
        <translation>Aplicar estilo</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n fotograma</numerusform>
            <numerusform>%n fotogramas</numerusform>
        </translation>
    </message>
    <message>
        <source>No frame is selected.</source>
        <translation>No hay ningún fotograma seleccionado.</translation>
    </message>
    <message>
        <source>Capture every frame again with the current caption style</source>
        <translation>Volver a capturar todos los fotogramas con el estilo de subtítulo actual</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Borrar fotogramas</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln frames?</source>
        <translation>
            <numerusform>¿Quitar %Ln fotograma?</numerusform>
            <numerusform>¿Quitar los %Ln fotogramas?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>LicenseManager</name>
    <message>
        <source>Please enter a licence key.</source>
        <translation>Introduzca una clave de licencia.</translation>
    </message>
    <message>
        <source>The licence server sent an answer that could not be read.</source>
        <translation>El servidor de licencias ha enviado una respuesta que no se puede leer.</translation>
    </message>
    <message>
        <source>This licence key was not accepted.</source>
        <translation>Esta clave de licencia no ha sido aceptada.</translation>
    </message>
</context>
<context>
    <name>LoadingDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Open video...</source>
        <translation>Abrir vídeo...</translation>
    </message>
    <message>
        <source>Add local subtitle...</source>
        <translation>Añadir subtítulos locales...</translation>
    </message>
    <message>
        <source>Caption panel</source>
        <translation>Panel de subtítulos</translation>
    </message>
    <message>
        <source>Output folder...</source>
        <translation>Carpeta de salida...</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Register...</source>
        <translation>Registrar...</translation>
    </message>
    <message>
        <source>About Glimmer</source>
        <translation>Acerca de Glimmer</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Abrir carpeta de registros</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato de salida</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>Elegir la carpeta de salida</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>Motor de voz...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The video cannot be played</source>
        <translation>No se puede reproducir el vídeo</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>No se ha podido abrir %1: %2</translation>
    </message>
    <message>
        <source>The video cannot be opened</source>
        <translation>No se puede abrir el vídeo</translation>
    </message>
    <message>
        <source>%1 does not exist or cannot be read.</source>
        <translation>%1 no existe o no se puede leer.</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>MpvWidget</name>
    <message>
        <source>the file has no video, only sound</source>
        <translation>el archivo no tiene vídeo, solo sonido</translation>
    </message>
</context>
<context>
    <name>OutputFiles</name>
    <message>
        <source>%1: the file has vanished before it could be moved to the output folder.</source>
        <translation>%1: el archivo desapareció antes de poder moverlo a la carpeta de salida.</translation>
    </message>
    <message>
        <source>%1 could not be moved to the output folder %2; it was kept at %3.</source>
        <translation>No se ha podido mover %1 a la carpeta de salida %2; se ha conservado en %3.</translation>
    </message>
</context>
<context>
    <name>PictureWriter</name>
    <message>
        <source>The picture is empty.</source>
        <translation>La imagen está vacía.</translation>
    </message>
    <message>
        <source>This system cannot write %1 pictures. Choose PNG.</source>
        <translation>Este sistema no puede guardar imágenes %1. Elija PNG.</translation>
    </message>
    <message>
        <source>The picture is too tall for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>La imagen es demasiado alta para WEBP: %1×%2 píxeles, y WEBP admite como máximo %3 píxeles por lado. Elija PNG o una escala menor.</translation>
    </message>
    <message>
        <source>The picture is too wide for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>La imagen es demasiado ancha para WEBP: %1×%2 píxeles, y WEBP admite como máximo %3 píxeles por lado. Elija PNG o una escala menor.</translation>
    </message>
    <message>
        <source>The picture is too tall for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>La imagen es demasiado alta para JPG: %1×%2 píxeles, y JPG admite como máximo %3 píxeles por lado. Elija PNG o una escala menor.</translation>
    </message>
    <message>
        <source>The picture is too wide for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>La imagen es demasiado ancha para JPG: %1×%2 píxeles, y JPG admite como máximo %3 píxeles por lado. Elija PNG o una escala menor.</translation>
    </message>
    <message>
        <source>Cannot create the file in %1: %2</source>
        <translation>No se puede crear el archivo en %1: %2</translation>
    </message>
    <message>
        <source>Writing the picture to %1 failed: %2</source>
        <translation>No se pudo escribir la imagen en %1: %2</translation>
    </message>
</context>
<context>
    <name>PreviewWidget</name>
    <message>
        <source>Layout:</source>
        <translation>Diseño:</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>X space</source>
        <translation>Espacio X</translation>
    </message>
    <message>
        <source>Y space</source>
        <translation>Espacio Y</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>The scale is 0: there is no picture to export.</source>
        <translation>La escala es 0: no hay ninguna imagen que exportar.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>No se ha podido iniciar el proceso %1. Código de salida %2</translation>
    </message>
</context>
<context>
    <name>RegisterDialog</name>
    <message>
        <source>Register %1</source>
        <translation>Registrar %1</translation>
    </message>
    <message>
        <source>Enter the licence key you received with your purchase. Registered copies export pictures without a watermark.</source>
        <translation>Introduzca la clave de licencia que recibió con su compra. Las copias registradas exportan imágenes sin marca de agua.</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>Clave de licencia</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Checking the licence key...</source>
        <translation>Comprobando la clave de licencia...</translation>
    </message>
    <message>
        <source>This copy is registered (%1). Thank you!</source>
        <translation>Esta copia está registrada (%1). ¡Gracias!</translation>
    </message>
</context>
<context>
    <name>RegisterGuideDialog</name>
    <message>
        <source>Export complete</source>
        <translation>Exportación completada</translation>
    </message>
    <message>
        <source>Your pictures were exported with a watermark</source>
        <translation>Sus imágenes se han exportado con marca de agua</translation>
    </message>
    <message>
        <source>This copy of %1 is not registered, so every exported picture carries the &quot;%1&quot; watermark. Register with your licence key to export clean pictures from now on.</source>
        <translation>Esta copia de %1 no está registrada, por lo que cada imagen exportada lleva la marca de agua «%1». Regístrela con su clave de licencia para exportar imágenes limpias a partir de ahora.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Register now</source>
        <translation>Registrar ahora</translation>
    </message>
</context>
<context>
    <name>SaveFileBar</name>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Carpeta de salida:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>Elegir la carpeta de salida</translation>
    </message>
</context>
<context>
    <name>SpeechEngineDialog</name>
    <message>
        <source>Works: %1</source>
        <translation>Funciona: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Falló: %1</translation>
    </message>
    <message>
        <source>Speech engine</source>
        <translation>Motor de voz</translation>
    </message>
    <message>
        <source>Built-in (offline, English only)</source>
        <translation>Integrado (sin conexión, solo inglés)</translation>
    </message>
    <message>
        <source>Transcription server (OpenAI-compatible API)</source>
        <translation>Servidor de transcripción (API compatible con OpenAI)</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modelo:</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>Clave:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>GLIMMER_SPEECHD_OPENAI_URL is set: automatic captions use that server whatever is chosen here.</source>
        <translation>GLIMMER_SPEECHD_OPENAI_URL está definida: los subtítulos automáticos usan ese servidor, se elija lo que se elija aquí.</translation>
    </message>
    <message>
        <source>Testing...</source>
        <translation>Probando...</translation>
    </message>
</context>
<context>
    <name>SpeechEngineTest</name>
    <message numerus="yes">
        <source>The test got no answer within %n second(s).</source>
        <translation>
            <numerusform>La prueba no recibió respuesta en %n segundo.</numerusform>
            <numerusform>La prueba no recibió respuesta en %n segundos.</numerusform>
        </translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>Falta el programa del servicio de reconocimiento de voz: %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>El servicio de reconocimiento de voz se ha detenido: %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>No se ha podido iniciar el servicio de reconocimiento de voz: %1</translation>
    </message>
    <message>
        <source>The test sound could not be written: %1</source>
        <translation>No se pudo escribir el sonido de prueba: %1</translation>
    </message>
    <message>
        <source>The built-in engine works. It recognises English.</source>
        <translation>El motor integrado funciona. Reconoce inglés.</translation>
    </message>
    <message>
        <source>%1 answered with model %2. It recognises the languages its model knows.</source>
        <translation>%1 respondió con el modelo %2. Reconoce los idiomas que conoce su modelo.</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(predeterminado)</translation>
    </message>
</context>
<context>
    <name>SpeechService</name>
    <message>
        <source>The speech service did not start in time.</source>
        <translation>El servicio de reconocimiento de voz no se ha iniciado a tiempo.</translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>Falta el programa del servicio de reconocimiento de voz: %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>El servicio de reconocimiento de voz se ha detenido: %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>No se ha podido iniciar el servicio de reconocimiento de voz: %1</translation>
    </message>
    <message>
        <source>The speech service did not answer: %1</source>
        <translation>El servicio de voz no respondió: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleConverter</name>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg was not found.</source>
        <translation>No se ha podido convertir el archivo SRT «%1»: no se ha encontrado ffmpeg.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg did not finish in time.</source>
        <translation>No se ha podido convertir el archivo SRT «%1»: ffmpeg no terminó a tiempo.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted.</source>
        <translation>No se ha podido convertir el archivo SRT «%1».</translation>
    </message>
</context>
<context>
    <name>SubtitleFile</name>
    <message>
        <source>&quot;%1&quot; is a folder, not a subtitle file.</source>
        <translation>«%1» es una carpeta, no un archivo de subtítulos.</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; could not be opened.</source>
        <translation>No se ha podido abrir el archivo de subtítulos «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file (a device, pipe or socket): it cannot be read as subtitles.</source>
        <translation>«%1» no es un archivo normal (es un dispositivo, una tubería o un socket): no se puede leer como subtítulos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be a subtitle file: subtitle files of up to %2 MB can be loaded.</source>
        <translation>«%1» es demasiado grande para ser un archivo de subtítulos: se pueden cargar archivos de hasta %2 MB.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Open video</source>
        <translation>Abrir vídeo</translation>
    </message>
    <message>
        <source>Open a video [Ctrl+O]</source>
        <translation>Abrir un vídeo [Ctrl+O]</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Subtítulos</translation>
    </message>
    <message>
        <source>Show or hide the caption list</source>
        <translation>Mostrar u ocultar la lista de subtítulos</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrar</translation>
    </message>
    <message>
        <source>Enter a licence key to remove the watermark</source>
        <translation>Introduzca una clave de licencia para quitar la marca de agua</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Deshacer: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rehacer: %1</translation>
    </message>
    <message>
        <source>Load subtitles</source>
        <translation>Cargar subtítulos</translation>
    </message>
    <message>
        <source>Automatic captions</source>
        <translation>Subtítulos automáticos</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Borrar fotogramas</translation>
    </message>
    <message>
        <source>Delete frame</source>
        <translation>Eliminar fotograma</translation>
    </message>
    <message>
        <source>Re-capture frames</source>
        <translation>Recapturar fotogramas</translation>
    </message>
</context>
<context>
    <name>VideoPlayWidget</name>
    <message>
        <source>Drop your video here! Or,&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;Click here to import video.&lt;/a&gt;</source>
        <translation>¡Arrastre su vídeo aquí! O bien,&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;haga clic aquí para importar un vídeo.&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Backward [Left]</source>
        <translation>Fotograma anterior [Izquierda]</translation>
    </message>
    <message>
        <source>Forward [Right]</source>
        <translation>Fotograma siguiente [Derecha]</translation>
    </message>
    <message>
        <source>Play [Space]</source>
        <translation>Reproducir [Espacio]</translation>
    </message>
    <message>
        <source>Stop [Ctrl+/]</source>
        <translation>Detener [Ctrl+/]</translation>
    </message>
    <message>
        <source>Capture [Ctrl+Alt+S]</source>
        <translation>Capturar [Ctrl+Alt+S]</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capturar</translation>
    </message>
    <message>
        <source>Capture selected</source>
        <translation>Capturar seleccionados</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>Archivos de vídeo</translation>
    </message>
    <message>
        <source>Open Video</source>
        <translation>Abrir vídeo</translation>
    </message>
    <message>
        <source>New caption</source>
        <translation>Nuevo subtítulo</translation>
    </message>
</context>
<context>
    <name>WindowFlows</name>
    <message>
        <source>No video</source>
        <translation>No hay vídeo</translation>
    </message>
    <message>
        <source>Open a video first, then generate its captions.</source>
        <translation>Abra primero un vídeo y luego genere sus subtítulos.</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Capturar marcados</translation>
    </message>
    <message>
        <source>Some captions were not captured</source>
        <translation>Algunos subtítulos no se capturaron</translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) start at or after the end of the video, or have no readable start time, and were skipped.</source>
        <translation>
            <numerusform>%n subtítulo empieza al final del vídeo o después, o no tiene una hora de inicio legible, y se ha omitido.</numerusform>
            <numerusform>%n subtítulos empiezan al final del vídeo o después, o no tienen una hora de inicio legible, y se han omitido.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open a video first, then create a caption at the current time.</source>
        <translation>Abra primero un vídeo y luego cree un subtítulo en el momento actual.</translation>
    </message>
    <message>
        <source>No room for a caption</source>
        <translation>No hay sitio para un subtítulo</translation>
    </message>
    <message>
        <source>A caption already covers the current time. Move to a moment without a caption.</source>
        <translation>Ya hay un subtítulo en el momento actual. Vaya a un momento sin subtítulo.</translation>
    </message>
    <message>
        <source>Edit the style of all captions</source>
        <translation>Editar el estilo de todos los subtítulos</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>Editar subtítulo</translation>
    </message>
    <message>
        <source>Create caption</source>
        <translation>Crear subtítulo</translation>
    </message>
    <message>
        <source>Edit caption text</source>
        <translation>Editar texto del subtítulo</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Borrar subtítulos</translation>
    </message>
    <message>
        <source>%1 needs a speech server</source>
        <translation>%1 necesita un servidor de voz</translation>
    </message>
    <message>
        <source>The built-in speech engine recognises English only. To make captions in %1, connect a transcription server in Speech engine.</source>
        <translation>El motor de voz integrado solo reconoce inglés. Para crear subtítulos en %1, conecte un servidor de transcripción en Motor de voz.</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>Motor de voz...</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The video player could not be started: %1</source>
        <translation>No se pudo iniciar el reproductor de vídeo: %1</translation>
    </message>
</context>
</TS>
