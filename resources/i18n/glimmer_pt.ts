<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>Sobre o %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Turn the moments of a video into still pictures with their captions.</source>
        <translation>Transforme os momentos de um vídeo em imagens estáticas com suas legendas.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>AutoCaptionFlow</name>
    <message>
        <source>The speech service gave an answer that cannot be read.</source>
        <translation>O serviço de reconhecimento de fala deu uma resposta que não pode ser lida.</translation>
    </message>
    <message>
        <source>No speech found</source>
        <translation>Nenhuma fala encontrada</translation>
    </message>
    <message>
        <source>No words were recognised in this video&apos;s sound track. Check the caption language, or add a subtitle file instead.</source>
        <translation>Nenhuma palavra foi reconhecida na faixa de áudio deste vídeo. Verifique o idioma da legenda ou adicione um arquivo de legendas.</translation>
    </message>
    <message>
        <source>The sound track could not be extracted from the video. It may have no audio, or ffmpeg is missing.</source>
        <translation>Não foi possível extrair a faixa de áudio do vídeo. Ele pode não ter áudio, ou o ffmpeg está ausente.</translation>
    </message>
    <message>
        <source>Generating captions...</source>
        <translation>Gerando legendas...</translation>
    </message>
    <message>
        <source>Automatic captions failed</source>
        <translation>Falha nas legendas automáticas</translation>
    </message>
    <message>
        <source>The speech service could not be reached.</source>
        <translation>Não foi possível acessar o serviço de reconhecimento de fala.</translation>
    </message>
</context>
<context>
    <name>CaptionDock</name>
    <message>
        <source>Captions</source>
        <translation>Legendas</translation>
    </message>
</context>
<context>
    <name>CaptionFileFlow</name>
    <message>
        <source>Open local subtitle</source>
        <translation>Abrir legenda local</translation>
    </message>
    <message>
        <source>Subtitle Files</source>
        <translation>Arquivos de legenda</translation>
    </message>
    <message>
        <source>The subtitle file could not be converted.</source>
        <translation>Não foi possível converter o arquivo de legendas.</translation>
    </message>
    <message>
        <source>%1 holds no captions that can be shown.</source>
        <translation>%1 não contém legendas que possam ser exibidas.</translation>
    </message>
    <message>
        <source>No captions loaded</source>
        <translation>Nenhuma legenda carregada</translation>
    </message>
    <message>
        <source>Reading the captions of %1…</source>
        <translation>Lendo as legendas de %1…</translation>
    </message>
    <message>
        <source>Converting %1…</source>
        <translation>Convertendo %1…</translation>
    </message>
    <message>
        <source>Some captions were not loaded</source>
        <translation>Algumas legendas não foram carregadas</translation>
    </message>
    <message>
        <source>%1 of the %2 captions in %3 could not be read; the other %4 were loaded.</source>
        <translation>Não foi possível ler %1 das %2 legendas de %3; as outras %4 foram carregadas.</translation>
    </message>
</context>
<context>
    <name>CaptionFileReader</name>
    <message>
        <source>&quot;%1&quot; holds more than %2 captions. To keep memory in bounds, at most %2 captions are loaded from one file: split it into parts.</source>
        <translation>&quot;%1&quot; contém mais de %2 legendas. Para poupar memória, são carregadas no máximo %2 legendas de um arquivo: divida-o em partes.</translation>
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
        <translation>Inglês (EUA)</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>Espanhol</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>Francês</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>Chinês simplificado</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>Cantonês</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>Japonês</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>Russo</translation>
    </message>
    <message>
        <source>No subtitle file was chosen.</source>
        <translation>Nenhum arquivo de legendas foi escolhido.</translation>
    </message>
    <message>
        <source>No captions were found in &quot;%1&quot;.</source>
        <translation>Nenhuma legenda foi encontrada em &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Captions are saved as .srt or .ass files; &quot;%1&quot; is neither.</source>
        <translation>As legendas são guardadas como ficheiros .srt ou .ass; &quot;%1&quot; não é nenhum deles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>Não foi possível escrever &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>CaptionSaveFlow</name>
    <message>
        <source>Save captions</source>
        <translation>Guardar legendas</translation>
    </message>
    <message>
        <source>Save captions as...</source>
        <translation>Guardar legendas como...</translation>
    </message>
    <message>
        <source>captions</source>
        <translation>legendas</translation>
    </message>
    <message>
        <source>SubRip subtitles (*.srt)</source>
        <translation>Legendas SubRip (*.srt)</translation>
    </message>
    <message>
        <source>ASS subtitles (*.ass)</source>
        <translation>Legendas ASS (*.ass)</translation>
    </message>
    <message>
        <source>The captions were not saved</source>
        <translation>As legendas não foram guardadas</translation>
    </message>
</context>
<context>
    <name>CaptionStyleBar</name>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
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
        <translation>Borda</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Aplicar a todas</translation>
    </message>
    <message>
        <source>Apply size, position and border to every caption</source>
        <translation>Aplicar tamanho, posição e borda a todas as legendas</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capturar</translation>
    </message>
    <message>
        <source>Include this caption in &quot;Capture selected&quot;</source>
        <translation>Incluir esta legenda em &quot;Capturar selecionadas&quot;</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Editar texto</translation>
    </message>
    <message>
        <source>Edit the caption on the video (or double-click it)</source>
        <translation>Editar a legenda sobre o vídeo (ou clicar duas vezes nela)</translation>
    </message>
    <message>
        <source>Add caption</source>
        <translation>Adicionar legenda</translation>
    </message>
    <message>
        <source>Add a caption at the current position</source>
        <translation>Adicionar uma legenda na posição atual</translation>
    </message>
</context>
<context>
    <name>CaptionWidget</name>
    <message>
        <source>search text</source>
        <translation>pesquisar texto</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Popup</source>
        <translation>Destacar</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
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
        <translation>Limpar tudo</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Capturar marcadas</translation>
    </message>
    <message>
        <source>Auto captions</source>
        <translation>Legendas automáticas</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Criar</translation>
    </message>
    <message>
        <source>Add local subtitle</source>
        <translation>Adicionar legenda local</translation>
    </message>
    <message>
        <source>No captions yet. Generate them from the video&apos;s speech, create one at the current time, or add a subtitle file.</source>
        <translation>Ainda não há legendas. Gere-as a partir da fala do vídeo, crie uma no momento atual ou adicione um arquivo de legendas.</translation>
    </message>
    <message>
        <source>Captions (%1)</source>
        <translation>Legendas (%1)</translation>
    </message>
    <message>
        <source>Select all (%1/%2)</source>
        <translation>Selecionar tudo (%1/%2)</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Limpar legendas</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln captions?</source>
        <translation>
            <numerusform>Remover %Ln legenda?</numerusform>
            <numerusform>Remover todas as %Ln legendas?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>%1 – needs a speech server</source>
        <translation>%1 – precisa de um servidor de voz</translation>
    </message>
</context>
<context>
    <name>CaptureController</name>
    <message>
        <source>Capture failed</source>
        <translation>Falha na captura</translation>
    </message>
    <message>
        <source>The player did not reach the requested moment.</source>
        <translation>O player não chegou ao momento solicitado.</translation>
    </message>
    <message>
        <source>Capturing images</source>
        <translation>Capturando imagens</translation>
    </message>
    <message>
        <source>The frame could not be captured from the player.</source>
        <translation>Não foi possível capturar o quadro do player.</translation>
    </message>
    <message>
        <source>Applying current style</source>
        <translation>Aplicando o estilo atual</translation>
    </message>
    <message>
        <source>Nothing to capture</source>
        <translation>Nada para capturar</translation>
    </message>
    <message>
        <source>Open a video first, then capture its frames.</source>
        <translation>Abra primeiro um vídeo e depois capture os seus fotogramas.</translation>
    </message>
    <message>
        <source>No caption ticked</source>
        <translation>Nenhuma legenda marcada</translation>
    </message>
    <message>
        <source>Tick the captions whose moments you want in the caption list, then press Capture checked again.</source>
        <translation>Marque na lista as legendas cujos momentos deseja e prima de novo Capturar marcadas.</translation>
    </message>
</context>
<context>
    <name>CheckUpdateDialog</name>
    <message>
        <source>Version: %1</source>
        <translation>Versão: %1</translation>
    </message>
    <message>
        <source>Release date: %1</source>
        <translation>Data de lançamento: %1</translation>
    </message>
    <message>
        <source>Size: %1</source>
        <translation>Tamanho: %1</translation>
    </message>
    <message>
        <source>Check for update</source>
        <translation>Verificar atualizações</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Your current use is already the latest version.</source>
        <translation>Você já está usando a versão mais recente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version is available</source>
        <translation>Uma nova versão está disponível</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Atualizar agora</translation>
    </message>
    <message>
        <source>The version information could not be read.</source>
        <translation>Não foi possível ler as informações da versão.</translation>
    </message>
    <message>
        <source>Could not check for updates. Please check your network connection and try again.
%1</source>
        <translation>Não foi possível verificar atualizações. Verifique sua conexão de rede e tente novamente.
%1</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>The captions have changes that were not saved.</source>
        <translation>As legendas têm alterações por guardar.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln captured frames were never exported and will be lost.</source>
        <translation>
            <numerusform>%Ln fotograma capturado nunca foi exportado e será perdido.</numerusform>
            <numerusform>%Ln fotogramas capturados nunca foram exportados e serão perdidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Close Glimmer</source>
        <translation>Fechar Glimmer</translation>
    </message>
    <message>
        <source>Save captions</source>
        <translation>Guardar legendas</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Fechar mesmo assim</translation>
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
        <translation>Não foi possível iniciar a ferramenta de download: %1</translation>
    </message>
    <message>
        <source>The downloaded file could not be opened: %1</source>
        <translation>Não foi possível abrir o arquivo baixado: %1</translation>
    </message>
    <message>
        <source>The download tool stopped before the download was complete.</source>
        <translation>A ferramenta de download parou antes de concluir o download.</translation>
    </message>
</context>
<context>
    <name>ExportNotice</name>
    <message numerus="yes">
        <source>Saved %n picture(s) to %1</source>
        <translation>
            <numerusform>%n imagem guardada em %1</numerusform>
            <numerusform>%n imagens guardadas em %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output folder %1 cannot be written.</source>
        <translation>Não é possível gravar na pasta de saída %1.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>Não foi possível ler o arquivo de áudio extraído.</translation>
    </message>
    <message>
        <source>The video has no sound that could be extracted.</source>
        <translation>O vídeo não tem som que possa ser extraído.</translation>
    </message>
    <message>
        <source>The speech service could not be reached: %1</source>
        <translation>Não foi possível acessar o serviço de reconhecimento de fala: %1</translation>
    </message>
</context>
<context>
    <name>ImageExporter</name>
    <message>
        <source>No picture was exported.</source>
        <translation>Nenhuma imagem foi exportada.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were exported, but some failed.</source>
        <translation>
            <numerusform>%n imagem foi exportada, mas outras falharam.</numerusform>
            <numerusform>%n imagens foram exportadas, mas outras falharam.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageItem</name>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>ImageListViewDialog</name>
    <message>
        <source>Captured frames</source>
        <translation>Quadros capturados</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Excluir tudo</translation>
    </message>
</context>
<context>
    <name>ImageViewDialog</name>
    <message>
        <source>Preview</source>
        <translation>Pré-visualização</translation>
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
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>List view</source>
        <translation>Exibição em lista</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar tudo</translation>
    </message>
    <message>
        <source>Apply Current Style</source>
        <translation>Aplicar estilo</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n quadro</numerusform>
            <numerusform>%n quadros</numerusform>
        </translation>
    </message>
    <message>
        <source>No frame is selected.</source>
        <translation>Nenhum quadro selecionado.</translation>
    </message>
    <message>
        <source>Capture every frame again with the current caption style</source>
        <translation>Capturar novamente todos os quadros com o estilo de legenda atual</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Limpar fotogramas</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln frames?</source>
        <translation>
            <numerusform>Remover %Ln fotograma?</numerusform>
            <numerusform>Remover todos os %Ln fotogramas?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>LicenseManager</name>
    <message>
        <source>Please enter a licence key.</source>
        <translation>Digite uma chave de licença.</translation>
    </message>
    <message>
        <source>The licence server sent an answer that could not be read.</source>
        <translation>O servidor de licenças enviou uma resposta que não pôde ser lida.</translation>
    </message>
    <message>
        <source>This licence key was not accepted.</source>
        <translation>Esta chave de licença não foi aceita.</translation>
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
        <translation>Adicionar legenda local...</translation>
    </message>
    <message>
        <source>Caption panel</source>
        <translation>Painel de legendas</translation>
    </message>
    <message>
        <source>Output folder...</source>
        <translation>Pasta de saída...</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Verificar atualizações</translation>
    </message>
    <message>
        <source>Register...</source>
        <translation>Registrar...</translation>
    </message>
    <message>
        <source>About Glimmer</source>
        <translation>Sobre o Glimmer</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Abrir pasta de logs</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato de saída</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>Escolher a pasta de saída</translation>
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
        <translation>Não é possível reproduzir o vídeo</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>Não foi possível abrir %1: %2</translation>
    </message>
    <message>
        <source>The video cannot be opened</source>
        <translation>Não é possível abrir o vídeo</translation>
    </message>
    <message>
        <source>%1 does not exist or cannot be read.</source>
        <translation>%1 não existe ou não pode ser lido.</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>MpvWidget</name>
    <message>
        <source>the file has no video, only sound</source>
        <translation>o ficheiro não tem vídeo, apenas som</translation>
    </message>
</context>
<context>
    <name>OutputFiles</name>
    <message>
        <source>%1: the file has vanished before it could be moved to the output folder.</source>
        <translation>%1: o arquivo desapareceu antes de ser movido para a pasta de saída.</translation>
    </message>
    <message>
        <source>%1 could not be moved to the output folder %2; it was kept at %3.</source>
        <translation>Não foi possível mover %1 para a pasta de saída %2; o arquivo foi mantido em %3.</translation>
    </message>
</context>
<context>
    <name>PictureWriter</name>
    <message>
        <source>The picture is empty.</source>
        <translation>A imagem está vazia.</translation>
    </message>
    <message>
        <source>This system cannot write %1 pictures. Choose PNG.</source>
        <translation>Este sistema não consegue gravar imagens %1. Escolha PNG.</translation>
    </message>
    <message>
        <source>The picture is too tall for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>A imagem é alta demais para WEBP: %1×%2 pixels, e o WEBP aceita no máximo %3 pixels por lado. Escolha PNG ou uma escala menor.</translation>
    </message>
    <message>
        <source>The picture is too wide for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>A imagem é larga demais para WEBP: %1×%2 pixels, e o WEBP aceita no máximo %3 pixels por lado. Escolha PNG ou uma escala menor.</translation>
    </message>
    <message>
        <source>The picture is too tall for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>A imagem é alta demais para JPG: %1×%2 pixels, e o JPG aceita no máximo %3 pixels por lado. Escolha PNG ou uma escala menor.</translation>
    </message>
    <message>
        <source>The picture is too wide for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>A imagem é larga demais para JPG: %1×%2 pixels, e o JPG aceita no máximo %3 pixels por lado. Escolha PNG ou uma escala menor.</translation>
    </message>
    <message>
        <source>Cannot create the file in %1: %2</source>
        <translation>Não é possível criar o ficheiro em %1: %2</translation>
    </message>
    <message>
        <source>Writing the picture to %1 failed: %2</source>
        <translation>Falha ao gravar a imagem em %1: %2</translation>
    </message>
</context>
<context>
    <name>PreviewWidget</name>
    <message>
        <source>Layout:</source>
        <translation>Layout:</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grade</translation>
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
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>X space</source>
        <translation>Espaço X</translation>
    </message>
    <message>
        <source>Y space</source>
        <translation>Espaço Y</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colunas</translation>
    </message>
    <message>
        <source>The scale is 0: there is no picture to export.</source>
        <translation>A escala é 0: não há imagem para exportar.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>Falha ao iniciar o processo %1. Código de saída %2</translation>
    </message>
</context>
<context>
    <name>RegisterDialog</name>
    <message>
        <source>Register %1</source>
        <translation>Registrar o %1</translation>
    </message>
    <message>
        <source>Enter the licence key you received with your purchase. Registered copies export pictures without a watermark.</source>
        <translation>Digite a chave de licença que você recebeu na compra. Cópias registradas exportam imagens sem marca d’água.</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>Chave de licença</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Checking the licence key...</source>
        <translation>Verificando a chave de licença...</translation>
    </message>
    <message>
        <source>This copy is registered (%1). Thank you!</source>
        <translation>Esta cópia está registrada (%1). Obrigado!</translation>
    </message>
</context>
<context>
    <name>RegisterGuideDialog</name>
    <message>
        <source>Export complete</source>
        <translation>Exportação concluída</translation>
    </message>
    <message>
        <source>Your pictures were exported with a watermark</source>
        <translation>Suas imagens foram exportadas com marca d’água</translation>
    </message>
    <message>
        <source>This copy of %1 is not registered, so every exported picture carries the &quot;%1&quot; watermark. Register with your licence key to export clean pictures from now on.</source>
        <translation>Esta cópia do %1 não está registrada, por isso cada imagem exportada leva a marca d’água &quot;%1&quot;. Registre-a com sua chave de licença para exportar imagens sem marca d’água a partir de agora.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>Register now</source>
        <translation>Registrar agora</translation>
    </message>
</context>
<context>
    <name>SaveFileBar</name>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Pasta de saída:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Alterar</translation>
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
        <translation>Escolher a pasta de saída</translation>
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
        <translation>Falhou: %1</translation>
    </message>
    <message>
        <source>Speech engine</source>
        <translation>Motor de voz</translation>
    </message>
    <message>
        <source>Built-in (offline, English only)</source>
        <translation>Integrado (offline, só inglês)</translation>
    </message>
    <message>
        <source>Transcription server (OpenAI-compatible API)</source>
        <translation>Servidor de transcrição (API compatível com OpenAI)</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Endereço:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modelo:</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>Chave:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhuma</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testar</translation>
    </message>
    <message>
        <source>GLIMMER_SPEECHD_OPENAI_URL is set: automatic captions use that server whatever is chosen here.</source>
        <translation>GLIMMER_SPEECHD_OPENAI_URL está definida: as legendas automáticas usam esse servidor, seja qual for a escolha aqui.</translation>
    </message>
    <message>
        <source>Testing...</source>
        <translation>Testando...</translation>
    </message>
</context>
<context>
    <name>SpeechEngineTest</name>
    <message numerus="yes">
        <source>The test got no answer within %n second(s).</source>
        <translation>
            <numerusform>O teste não recebeu resposta em %n segundo.</numerusform>
            <numerusform>O teste não recebeu resposta em %n segundos.</numerusform>
        </translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>O programa do serviço de reconhecimento de fala está ausente: %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>O serviço de reconhecimento de fala parou: %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>Não foi possível iniciar o serviço de reconhecimento de fala: %1</translation>
    </message>
    <message>
        <source>The test sound could not be written: %1</source>
        <translation>Não foi possível gravar o som de teste: %1</translation>
    </message>
    <message>
        <source>The built-in engine works. It recognises English.</source>
        <translation>O motor integrado funciona. Reconhece inglês.</translation>
    </message>
    <message>
        <source>%1 answered with model %2. It recognises the languages its model knows.</source>
        <translation>%1 respondeu com o modelo %2. Reconhece os idiomas que o seu modelo conhece.</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(padrão)</translation>
    </message>
</context>
<context>
    <name>SpeechService</name>
    <message>
        <source>The speech service did not start in time.</source>
        <translation>O serviço de reconhecimento de fala não foi iniciado a tempo.</translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>O programa do serviço de reconhecimento de fala está ausente: %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>O serviço de reconhecimento de fala parou: %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>Não foi possível iniciar o serviço de reconhecimento de fala: %1</translation>
    </message>
    <message>
        <source>The speech service did not answer: %1</source>
        <translation>O serviço de voz não respondeu: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleConverter</name>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg was not found.</source>
        <translation>Não foi possível converter o arquivo SRT &quot;%1&quot;: o ffmpeg não foi encontrado.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg did not finish in time.</source>
        <translation>Não foi possível converter o arquivo SRT &quot;%1&quot;: o ffmpeg não terminou a tempo.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted.</source>
        <translation>Não foi possível converter o arquivo SRT &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>SubtitleFile</name>
    <message>
        <source>&quot;%1&quot; is a folder, not a subtitle file.</source>
        <translation>&quot;%1&quot; é uma pasta, não um arquivo de legendas.</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; could not be opened.</source>
        <translation>Não foi possível abrir o arquivo de legendas &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file (a device, pipe or socket): it cannot be read as subtitles.</source>
        <translation>&quot;%1&quot; não é um arquivo comum (dispositivo, pipe ou socket): não pode ser lido como legendas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be a subtitle file: subtitle files of up to %2 MB can be loaded.</source>
        <translation>&quot;%1&quot; é grande demais para ser um arquivo de legendas: podem ser carregados arquivos de até %2 MB.</translation>
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
        <translation>Abrir um vídeo [Ctrl+O]</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Legendas</translation>
    </message>
    <message>
        <source>Show or hide the caption list</source>
        <translation>Mostrar ou ocultar a lista de legendas</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrar</translation>
    </message>
    <message>
        <source>Enter a licence key to remove the watermark</source>
        <translation>Digite uma chave de licença para remover a marca d’água</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
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
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>Undo</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Anular: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Refazer: %1</translation>
    </message>
    <message>
        <source>Load subtitles</source>
        <translation>Carregar legendas</translation>
    </message>
    <message>
        <source>Automatic captions</source>
        <translation>Legendas automáticas</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Limpar fotogramas</translation>
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
        <translation>Arraste seu vídeo para cá! Ou&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;clique aqui para importar um vídeo.&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Backward [Left]</source>
        <translation>Quadro anterior [Esquerda]</translation>
    </message>
    <message>
        <source>Forward [Right]</source>
        <translation>Próximo quadro [Direita]</translation>
    </message>
    <message>
        <source>Play [Space]</source>
        <translation>Reproduzir [Espaço]</translation>
    </message>
    <message>
        <source>Stop [Ctrl+/]</source>
        <translation>Parar [Ctrl+/]</translation>
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
        <translation>Capturar selecionadas</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>Arquivos de vídeo</translation>
    </message>
    <message>
        <source>Open Video</source>
        <translation>Abrir vídeo</translation>
    </message>
    <message>
        <source>New caption</source>
        <translation>Nova legenda</translation>
    </message>
</context>
<context>
    <name>WindowFlows</name>
    <message>
        <source>No video</source>
        <translation>Nenhum vídeo</translation>
    </message>
    <message>
        <source>Open a video first, then generate its captions.</source>
        <translation>Abra um vídeo primeiro e depois gere as legendas.</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Capturar marcadas</translation>
    </message>
    <message>
        <source>Some captions were not captured</source>
        <translation>Algumas legendas não foram capturadas</translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) start at or after the end of the video, or have no readable start time, and were skipped.</source>
        <translation>
            <numerusform>%n legenda começa no fim do vídeo ou depois, ou não tem um início legível, e foi ignorada.</numerusform>
            <numerusform>%n legendas começam no fim do vídeo ou depois, ou não têm um início legível, e foram ignoradas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open a video first, then create a caption at the current time.</source>
        <translation>Abra um vídeo primeiro e depois crie uma legenda no momento atual.</translation>
    </message>
    <message>
        <source>No room for a caption</source>
        <translation>Não há espaço para uma legenda</translation>
    </message>
    <message>
        <source>A caption already covers the current time. Move to a moment without a caption.</source>
        <translation>Já existe uma legenda no momento atual. Vá para um momento sem legenda.</translation>
    </message>
    <message>
        <source>Edit the style of all captions</source>
        <translation>Editar o estilo de todas as legendas</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>Editar legenda</translation>
    </message>
    <message>
        <source>Create caption</source>
        <translation>Criar legenda</translation>
    </message>
    <message>
        <source>Edit caption text</source>
        <translation>Editar texto da legenda</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Limpar legendas</translation>
    </message>
    <message>
        <source>%1 needs a speech server</source>
        <translation>%1 precisa de um servidor de voz</translation>
    </message>
    <message>
        <source>The built-in speech engine recognises English only. To make captions in %1, connect a transcription server in Speech engine.</source>
        <translation>O motor de voz integrado só reconhece inglês. Para legendas em %1, ligue um servidor de transcrição em Motor de voz.</translation>
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
        <translation>Não foi possível iniciar o reprodutor de vídeo: %1</translation>
    </message>
</context>
</TS>
