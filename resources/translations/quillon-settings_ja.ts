<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Checks</name>
    <message>
        <source>The disk image &quot;%1&quot; is missing.</source>
        <translation>ディスクイメージ「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are missing: %3.</source>
        <translation>%2 個のディスクイメージのうち %1 個が見つかりません: %3。</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; cannot be reached.</source>
        <translation>ディスクイメージ「%1」にアクセスできません。</translation>
    </message>
    <message>
        <source>%1 of %2 disk images cannot be reached: %3.</source>
        <translation>%2 個のディスクイメージのうち %1 個にアクセスできません: %3。</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; is a folder.</source>
        <translation>ディスクイメージ「%1」はフォルダーです。</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are folders: %3.</source>
        <translation>%2 個のディスクイメージのうち %1 個がフォルダーです: %3。</translation>
    </message>
    <message>
        <source>There is no permission to read the disk image &quot;%1&quot;.</source>
        <translation>ディスクイメージ「%1」を読み取る権限がありません。</translation>
    </message>
    <message>
        <source>There is no permission to read %1 of %2 disk images: %3.</source>
        <translation>%2 個のディスクイメージのうち %1 個を読み取る権限がありません: %3。</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; is empty.</source>
        <translation>ディスクイメージ「%1」は空です。</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are empty: %3.</source>
        <translation>%2 個のディスクイメージのうち %1 個が空です: %3。</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; cannot be written to.</source>
        <translation>ディスクイメージ「%1」に書き込めません。</translation>
    </message>
    <message>
        <source>%1 of %2 disk images cannot be written to: %3.</source>
        <translation>%2 個のディスクイメージのうち %1 個に書き込めません: %3。</translation>
    </message>
    <message>
        <source>There is no disk image in the list.</source>
        <translation>リストにディスクイメージがありません。</translation>
    </message>
    <message>
        <source>%1 disk images are one and the same file, which two writers would damage: %2.</source>
        <translation>%1 個のディスクイメージが同じファイルです。二重に書き込むと壊れます: %2。</translation>
    </message>
    <message>
        <source>Start is disabled: choose where Quillon is in Edit &gt; Preferences.</source>
        <translation>「開始」は無効です。「編集 &gt; 設定」で Quillon の場所を選択してください。</translation>
    </message>
    <message>
        <source>Quillon is set to be nowhere: choose where it is in Edit &gt; Preferences.</source>
        <translation>Quillon の場所が設定されていません。「編集 &gt; 設定」で選択してください。</translation>
    </message>
    <message>
        <source>Quillon cannot be reached at &quot;%1&quot;: %2.</source>
        <translation>「%1」の Quillon にアクセスできません: %2。</translation>
    </message>
    <message>
        <source>Quillon is not at &quot;%1&quot;: nothing is there.</source>
        <translation>「%1」に Quillon がありません。そこには何もありません。</translation>
    </message>
    <message>
        <source>Quillon is not at &quot;%1&quot;: what is there holds no program.</source>
        <translation>「%1」に Quillon がありません。そこにあるものにはプログラムが含まれていません。</translation>
    </message>
    <message>
        <source>No ROM file is chosen.</source>
        <translation>ROM ファイルが選択されていません。</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is missing.</source>
        <translation>ROM ファイル「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; cannot be reached: %2.</source>
        <translation>ROM ファイル「%1」にアクセスできません: %2。</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is a folder.</source>
        <translation>ROM ファイル「%1」はフォルダーです。</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is a device and no file.</source>
        <translation>ROM ファイル「%1」はデバイスであり、ファイルではありません。</translation>
    </message>
    <message>
        <source>There is no permission to read the ROM file &quot;%1&quot;.</source>
        <translation>ROM ファイル「%1」を読み取る権限がありません。</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is %2 bytes large and most likely no ROM: those are 64, 128, 256 or 512 KB, 1, 2 or 4 MB large.</source>
        <translation>ROM ファイル「%1」の大きさは %2 バイトで、ROM ではない可能性が高いです。ROM の大きさは 64、128、256、512 KB、または 1、2、4 MB です。</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; cannot be reached: %2.</source>
        <translation>共有フォルダー「%1」にアクセスできません: %2。</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is missing.</source>
        <translation>共有フォルダー「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is no folder.</source>
        <translation>共有フォルダー「%1」はフォルダーではありません。</translation>
    </message>
    <message>
        <source>Raw key codes are on, and their file &quot;%1&quot; is missing.</source>
        <translation>生のキーコードが有効ですが、そのファイル「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>Raw key codes are on, and no file is chosen for them.</source>
        <translation>生のキーコードが有効ですが、そのファイルが選択されていません。</translation>
    </message>
    <message>
        <source>The preferences file could not be read: %1. What you see are the defaults, and saving puts them in the place of what is in the file.</source>
        <translation>設定ファイルを読み取れませんでした: %1。表示されているのは既定値です。保存すると、ファイルの内容は既定値で置き換えられます。</translation>
    </message>
    <message>
        <source>The place of the preferences file names no file: no save can succeed.</source>
        <translation>設定ファイルの場所がファイルを指していません。保存できません。</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; could not be saved: %2.</source>
        <translation>設定ファイル「%1」を保存できませんでした: %2。</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; cannot be written: a save will fail.</source>
        <translation>設定ファイル「%1」に書き込めません。保存は失敗します。</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; exists and has not been read. A save replaces what is in it.</source>
        <translation>設定ファイル「%1」は存在しますが、読み取られていません。保存すると内容が置き換えられます。</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; has been removed by another program. A save makes it anew.</source>
        <translation>設定ファイル「%1」は別のプログラムによって削除されました。保存すると新しく作成されます。</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; has been changed by another program. A save undoes that.</source>
        <translation>設定ファイル「%1」は別のプログラムによって変更されました。保存するとその変更は失われます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing that this program knows. It shows &quot;%2&quot;, and a save keeps the line as it is.</source>
        <translation>「%1」はこのプログラムにとって未知の値です。「%2」と表示し、保存してもその行は変わりません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the file is nothing that this program knows. It shows &quot;%2&quot;, and a save writes &quot;%3&quot;.</source>
        <translation>ファイル内の「%1」はこのプログラムにとって未知の値です。「%2」と表示し、保存すると「%3」が書き込まれます。</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; comes from a line that does not begin with &quot;%2&quot;: &quot;%3&quot;.</source>
        <translation>値「%1」は、「%2」で始まらない行から読み取られました: 「%3」。</translation>
    </message>
    <message>
        <source>After a save the value of &quot;%1&quot; would be read from another line: &quot;%2&quot;.</source>
        <translation>保存後、「%1」の値は別の行から読み取られることになります: 「%2」。</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Disk image</source>
        <translation>ディスクイメージ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>A folder of this computer that appears as a disk inside the emulated Macintosh.</source>
        <translation>エミュレートされた Macintosh の中でディスクとして表示される、このコンピューターのフォルダーです。</translation>
    </message>
    <message>
        <source>as a path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Whether the Macintosh screen is shown in a window or fills the screen, and how large it is. &quot;Maximum&quot; takes all the room there is.</source>
        <translation>Macintosh の画面をウィンドウに表示するか全画面に表示するか、およびその大きさです。「Maximum」では利用できる領域をすべて使います。</translation>
    </message>
    <message>
        <source>as type/width/height, in pixels, 0 for the maximum</source>
        <translation>種類/幅/高さ (ピクセル単位、0 は最大)</translation>
    </message>
    <message>
        <source>The device or program that the modem port is connected to. Leave it empty for none.</source>
        <translation>モデムポートに接続するデバイスまたはプログラムです。なければ空欄にします。</translation>
    </message>
    <message>
        <source>The device or program that the printer port is connected to. Leave it empty for none.</source>
        <translation>プリンターポートに接続するデバイスまたはプログラムです。なければ空欄にします。</translation>
    </message>
    <message>
        <source>How the Macintosh reaches the network: &quot;slirp&quot; needs no set-up, or the name of a network device.</source>
        <translation>Macintosh がネットワークに接続する方法です。「slirp」は準備が不要です。またはネットワークデバイスの名前を指定します。</translation>
    </message>
    <message>
        <source>Sends network packets to other emulators on the local network through UDP.</source>
        <translation>UDP を使って、ローカルネットワーク上の他のエミュレーターにネットワークパケットを送ります。</translation>
    </message>
    <message>
        <source>as true or false</source>
        <translation>true または false</translation>
    </message>
    <message>
        <source>The UDP port of the tunnel. All emulators that are to meet need the same.</source>
        <translation>トンネルの UDP ポートです。互いに通信するエミュレーターはすべて同じポートにする必要があります。</translation>
    </message>
    <message>
        <source>as a number from 1 to 65535</source>
        <translation>1 から 65535 までの数値</translation>
    </message>
    <message>
        <source>The file with the ROM of a Macintosh. The emulator cannot start without it.</source>
        <translation>Macintosh の ROM のファイルです。これがないとエミュレーターは起動できません。</translation>
    </message>
    <message>
        <source>The drive that the Macintosh tries to start from.</source>
        <translation>Macintosh が起動を試みるドライブです。</translation>
    </message>
    <message>
        <source>as 0 for any drive, or 1</source>
        <translation>0 は任意のドライブ、または 1</translation>
    </message>
    <message>
        <source>The memory of the Macintosh in megabytes. Old systems may not start with very much of it.</source>
        <translation>Macintosh のメモリー (MB 単位) です。古いシステムは、メモリーが非常に多いと起動しないことがあります。</translation>
    </message>
    <message>
        <source>in bytes</source>
        <translation>バイト単位</translation>
    </message>
    <message>
        <source>How often the Macintosh screen is drawn. Lower rates leave more time for the processor.</source>
        <translation>Macintosh の画面を描画する頻度です。頻度を下げるとプロセッサーに余裕ができます。</translation>
    </message>
    <message>
        <source>as frames per drawing, 0 for dynamic</source>
        <translation>描画 1 回あたりのフレーム数、0 は動的</translation>
    </message>
    <message>
        <source>The model that the Macintosh says it is. Mac OS 8 needs the Quadra.</source>
        <translation>Macintosh が名乗るモデルです。Mac OS 8 には Quadra が必要です。</translation>
    </message>
    <message>
        <source>as a model number</source>
        <translation>モデル番号</translation>
    </message>
    <message>
        <source>The processor of the Macintosh, with or without floating-point unit.</source>
        <translation>Macintosh のプロセッサーです。浮動小数点ユニットの有無も含みます。</translation>
    </message>
    <message>
        <source>as the x of 680x0, together with &quot;fpu&quot; as true or false</source>
        <translation>680x0 の x、「fpu」の true または false とともに</translation>
    </message>
    <message>
        <source>Whether the processor has a floating-point unit.</source>
        <translation>プロセッサーに浮動小数点ユニットがあるかどうかです。</translation>
    </message>
    <message>
        <source>Takes the CD-ROM drive out of the Macintosh.</source>
        <translation>Macintosh から CD-ROM ドライブを取り除きます。</translation>
    </message>
    <message>
        <source>Keeps the Macintosh silent.</source>
        <translation>Macintosh の音を消します。</translation>
    </message>
    <message>
        <source>Translates the Macintosh&apos;s programs for this computer&apos;s processor as they run. Much faster; needs a 68020 or later.</source>
        <translation>Macintosh のプログラムを、実行しながらこのコンピューターのプロセッサー用に変換します。大幅に高速になります。68020 以降が必要です。</translation>
    </message>
    <message>
        <source>Translates floating-point instructions, too. Faster, a little less exact.</source>
        <translation>浮動小数点命令も変換します。高速になりますが、精度が少し下がります。</translation>
    </message>
    <message>
        <source>The memory for translated programs.</source>
        <translation>変換されたプログラムのためのメモリーです。</translation>
    </message>
    <message>
        <source>in KB</source>
        <translation>KB 単位</translation>
    </message>
    <message>
        <source>Throws translated programs away only when they are really no longer valid. Faster.</source>
        <translation>変換されたプログラムを、本当に無効になったときだけ破棄します。高速になります。</translation>
    </message>
    <message>
        <source>Translates across jumps that always lead to the same place. Faster.</source>
        <translation>常に同じ場所に進むジャンプをまたいで変換します。高速になります。</translation>
    </message>
    <message>
        <source>Tells keys apart by their place on the keyboard, through a table in a file, and not by their letter.</source>
        <translation>キーを文字ではなくキーボード上の位置で区別します。ファイルの対応表を使います。</translation>
    </message>
    <message>
        <source>The file with the table of key codes. Used only with raw key codes.</source>
        <translation>キーコードの対応表のファイルです。生のキーコードを使うときだけ使用します。</translation>
    </message>
    <message>
        <source>Which keys a turn of the mouse wheel presses inside the Macintosh.</source>
        <translation>マウスホイールを回したときに Macintosh の中で押されるキーです。</translation>
    </message>
    <message>
        <source>as 0 for pages, 1 for the cursor</source>
        <translation>0 はページ、1 はカーソル</translation>
    </message>
    <message>
        <source>How many lines one step of the mouse wheel scrolls.</source>
        <translation>マウスホイールの 1 段階でスクロールする行数です。</translation>
    </message>
    <message>
        <source>as a number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>The device that sound goes to. Leave it empty for the usual one.</source>
        <translation>音声を出力するデバイスです。通常のデバイスを使う場合は空欄にします。</translation>
    </message>
    <message>
        <source>The device that sets the loudness. Leave it empty for the usual one.</source>
        <translation>音量を調節するデバイスです。通常のデバイスを使う場合は空欄にします。</translation>
    </message>
    <message>
        <source>Lets the Macintosh go on when a program reaches for memory that is not there.</source>
        <translation>プログラムが存在しないメモリーにアクセスしても、Macintosh の実行を続けます。</translation>
    </message>
    <message>
        <source>Rests while the Macintosh has nothing to do and saves this computer&apos;s energy.</source>
        <translation>Macintosh が何もしていない間は休止し、このコンピューターの電力を節約します。</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>UTF-8 のテキストではありません</translation>
    </message>
</context>
<context>
    <name>Items</name>
    <message>
        <source>Dynamic</source>
        <translation>動的</translation>
    </message>
    <message>
        <source>7.5 Hz</source>
        <translation>7.5 Hz</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Page up / page down</source>
        <translation>Page Up / Page Down</translation>
    </message>
    <message>
        <source>Cursor up / down</source>
        <translation>カーソル上 / 下</translation>
    </message>
    <message>
        <source>Any drive</source>
        <translation>任意のドライブ</translation>
    </message>
    <message>
        <source>Drive 1</source>
        <translation>ドライブ 1</translation>
    </message>
    <message>
        <source>68020 with FPU</source>
        <translation>68020 (FPU あり)</translation>
    </message>
    <message>
        <source>68030 with FPU</source>
        <translation>68030 (FPU あり)</translation>
    </message>
    <message>
        <source> (from the file)</source>
        <translation> (ファイルの値)</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>SCSI</source>
        <translation>SCSI</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>マシン</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>Sound &amp; Input</source>
        <translation>サウンドと入力</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>JIT</source>
        <translation>JIT</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>Kinds</name>
    <message>
        <source>Disk Image</source>
        <translation>ディスクイメージ</translation>
    </message>
    <message>
        <source>Not Found!</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>No Path!</source>
        <translation>パスがありません</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Choose the Key Code File</source>
        <translation>キーコードファイルの選択</translation>
    </message>
    <message>
        <source>Choose the ROM File</source>
        <translation>ROM ファイルの選択</translation>
    </message>
    <message>
        <source>Choose a Folder for New Images</source>
        <translation>新しいディスクイメージのフォルダーの選択</translation>
    </message>
    <message>
        <source>Choose Unix Root Folder</source>
        <translation>共有フォルダーの選択</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>ディスクイメージの選択</translation>
    </message>
    <message>
        <source>Create a new blank volume</source>
        <translation>新しい空のディスクイメージ</translation>
    </message>
    <message>
        <source>Create a new blank unformatted disk image</source>
        <translation>フォーマットされていない新しい空のディスクイメージを作成します</translation>
    </message>
    <message>
        <source>Choose Quillon</source>
        <translation>Quillon の選択</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>exchange files, host folder, share</source>
        <translation>ファイル交換, ホストフォルダー, 共有</translation>
    </message>
    <message>
        <source>resolution, fullscreen, window size, monitor, pixels</source>
        <translation>解像度, フルスクリーン, ウィンドウサイズ, モニター, ピクセル</translation>
    </message>
    <message>
        <source>serial port, terminal</source>
        <translation>シリアルポート, 端末, ターミナル</translation>
    </message>
    <message>
        <source>serial port, printing</source>
        <translation>シリアルポート, 印刷</translation>
    </message>
    <message>
        <source>internet, Ethernet, web, TCP/IP</source>
        <translation>インターネット, イーサネット, Ethernet, ウェブ, TCP/IP</translation>
    </message>
    <message>
        <source>internet, AppleTalk, local network</source>
        <translation>インターネット, AppleTalk, ローカルネットワーク, LAN</translation>
    </message>
    <message>
        <source>firmware, BIOS</source>
        <translation>ファームウェア, BIOS</translation>
    </message>
    <message>
        <source>startup disk, boot order, boot disk</source>
        <translation>起動ディスク, 起動順序, ブート</translation>
    </message>
    <message>
        <source>memory, megabytes</source>
        <translation>メモリー, メモリ, メガバイト</translation>
    </message>
    <message>
        <source>frames per second, FPS, speed, frame skip</source>
        <translation>フレームレート, FPS, 速度, フレームスキップ</translation>
    </message>
    <message>
        <source>computer, machine type, Gestalt</source>
        <translation>コンピューター, 機種, Gestalt</translation>
    </message>
    <message>
        <source>CPU, FPU, coprocessor, Motorola</source>
        <translation>CPU, FPU, コプロセッサー, Motorola</translation>
    </message>
    <message>
        <source>optical drive, CD, disc</source>
        <translation>光学ドライブ, CD, ディスク</translation>
    </message>
    <message>
        <source>audio, mute, volume, speaker</source>
        <translation>オーディオ, 音声, ミュート, 消音, 音量, スピーカー</translation>
    </message>
    <message>
        <source>speed, fast, dynamic translation, recompiler</source>
        <translation>速度, 高速, 動的変換, 再コンパイル</translation>
    </message>
    <message>
        <source>floating point, speed</source>
        <translation>浮動小数点, 速度</translation>
    </message>
    <message>
        <source>memory, speed</source>
        <translation>メモリー, メモリ, 速度</translation>
    </message>
    <message>
        <source>keyboard layout, keymap</source>
        <translation>キーボード配列, キーマップ</translation>
    </message>
    <message>
        <source>scroll wheel, scrolling</source>
        <translation>スクロールホイール, スクロール</translation>
    </message>
    <message>
        <source>scroll wheel, scrolling speed</source>
        <translation>スクロールホイール, スクロール速度</translation>
    </message>
    <message>
        <source>audio device, sound card</source>
        <translation>オーディオデバイス, 音声, サウンドカード</translation>
    </message>
    <message>
        <source>audio device, sound card, loudness</source>
        <translation>オーディオデバイス, サウンドカード, 音量</translation>
    </message>
    <message>
        <source>crash, memory errors</source>
        <translation>クラッシュ, メモリーエラー</translation>
    </message>
    <message>
        <source>battery, power, fan, processor load</source>
        <translation>バッテリー, 電力, 省電力, ファン, 負荷</translation>
    </message>
    <message>
        <source>hard disk, hard drive, floppy, diskette, volume</source>
        <translation>ハードディスク, ドライブ, フロッピー, ディスケット, ボリューム</translation>
    </message>
</context>
<context>
    <name>SearchPlaces</name>
    <message>
        <source>%1 (turn on &quot;%2&quot; first)</source>
        <translation>%1 (先に「%2」をオンにしてください)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is disabled. Turn on &quot;%2&quot; first.</source>
        <translation>「%1」は無効です。先に「%2」をオンにしてください。</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>ディスクイメージ</translation>
    </message>
    <message>
        <source>SCSI ID 0</source>
        <translation>SCSI ID 0</translation>
    </message>
    <message>
        <source>Where Quillon is</source>
        <translation>Quillon の場所</translation>
    </message>
    <message>
        <source>location, path, emulator, Quillon.app</source>
        <translation>場所, パス, エミュレーター, Quillon.app</translation>
    </message>
    <message>
        <source>Quit after Start</source>
        <translation>開始したら終了する</translation>
    </message>
    <message>
        <source>exit, close, end</source>
        <translation>終了, 閉じる</translation>
    </message>
    <message>
        <source>Show the SCSI tab</source>
        <translation>SCSI タブを表示する</translation>
    </message>
    <message>
        <source>bus, devices</source>
        <translation>バス, デバイス</translation>
    </message>
    <message>
        <source>Preferences window</source>
        <translation>設定ウィンドウ</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Screen &amp;mode</source>
        <translation>画面モード(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>幅(&amp;W)</translation>
    </message>
    <message>
        <source>Hei&amp;ght</source>
        <translation>高さ(&amp;G)</translation>
    </message>
    <message>
        <source>Shared fol&amp;der</source>
        <translation>共有フォルダー(&amp;D)</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>&amp;Modem port</source>
        <translation>モデムポート(&amp;M)</translation>
    </message>
    <message>
        <source>P&amp;rinter port</source>
        <translation>プリンターポート(&amp;R)</translation>
    </message>
    <message>
        <source>Network &amp;device</source>
        <translation>ネットワークデバイス(&amp;D)</translation>
    </message>
    <message>
        <source>Tunnel the net&amp;work over UDP</source>
        <translation>UDP でネットワークをトンネルする(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;UDP port</source>
        <translation>UDP ポート(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;ROM file</source>
        <translation>ROM ファイル(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Boot drive</source>
        <translation>起動ドライブ(&amp;B)</translation>
    </message>
    <message>
        <source>Boot driver</source>
        <translation>起動ドライバー</translation>
    </message>
    <message>
        <source>RA&amp;M size (MB)</source>
        <translation>RAM サイズ (MB)(&amp;M)</translation>
    </message>
    <message>
        <source>Refresh r&amp;ate</source>
        <translation>更新頻度(&amp;A)</translation>
    </message>
    <message>
        <source>M&amp;odel</source>
        <translation>モデル(&amp;O)</translation>
    </message>
    <message>
        <source>Processor (CP&amp;U)</source>
        <translation>プロセッサー (CPU)(&amp;U)</translation>
    </message>
    <message>
        <source>Floating-point unit (FPU)</source>
        <translation>浮動小数点ユニット (FPU)</translation>
    </message>
    <message>
        <source>&amp;Disable the CD-ROM drive</source>
        <translation>CD-ROM ドライブを無効にする(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Disable sound</source>
        <translation>サウンドを無効にする(&amp;D)</translation>
    </message>
    <message>
        <source>Leave the clipboard unconverted</source>
        <translation>クリップボードを変換しない</translation>
    </message>
    <message>
        <source>No windows of its own</source>
        <translation>独自のウィンドウを使わない</translation>
    </message>
    <message>
        <source>Enable the &amp;JIT compiler</source>
        <translation>JIT コンパイラーを有効にする(&amp;J)</translation>
    </message>
    <message>
        <source>Compile floating-point instr&amp;uctions</source>
        <translation>浮動小数点命令をコンパイルする(&amp;U)</translation>
    </message>
    <message>
        <source>Debug the JIT compiler</source>
        <translation>JIT コンパイラーをデバッグする</translation>
    </message>
    <message>
        <source>Cache si&amp;ze (KB)</source>
        <translation>キャッシュサイズ (KB)(&amp;Z)</translation>
    </message>
    <message>
        <source>Flush the cache lazil&amp;y</source>
        <translation>キャッシュを遅延消去する(&amp;Y)</translation>
    </message>
    <message>
        <source>Inline &amp;blocks</source>
        <translation>ブロックをインライン化する(&amp;B)</translation>
    </message>
    <message>
        <source>Keyboard type</source>
        <translation>キーボードの種類</translation>
    </message>
    <message>
        <source>Use raw &amp;key codes</source>
        <translation>生のキーコードを使う(&amp;K)</translation>
    </message>
    <message>
        <source>Ke&amp;y code file</source>
        <translation>キーコードファイル(&amp;Y)</translation>
    </message>
    <message>
        <source>Mouse &amp;wheel</source>
        <translation>マウスホイール(&amp;W)</translation>
    </message>
    <message>
        <source>L&amp;ines to scroll</source>
        <translation>スクロールする行数(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Output device</source>
        <translation>出力デバイス(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Mixer device</source>
        <translation>ミキサーデバイス(&amp;M)</translation>
    </message>
    <message>
        <source>Ignore &amp;memory faults</source>
        <translation>メモリー違反を無視する(&amp;M)</translation>
    </message>
    <message>
        <source>Rest while the Macintosh is &amp;idle</source>
        <translation>アイドル時に休止する(&amp;I)</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message>
        <source>Zero KB</source>
        <translation>0 KB</translation>
    </message>
    <message>
        <source>byte</source>
        <translation>バイト</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>バイト</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>TB</translation>
    </message>
</context>
<context>
    <name>desktop</name>
    <message>
        <source>Problem: %1</source>
        <translation>問題: %1</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>警告: %1</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>注意: %1</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>ディスクイメージ</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>選択(&amp;O)…</translation>
    </message>
    <message>
        <source>Chooses the shared folder.</source>
        <translation>共有フォルダーを選択します。</translation>
    </message>
    <message>
        <source>SCSI &amp;ID 0</source>
        <translation>SCSI ID 0(&amp;I)</translation>
    </message>
    <message>
        <source>A mark for yourself while the window is open. It is not saved.</source>
        <translation>ウィンドウを開いている間のご自身のための目印です。保存されません。</translation>
    </message>
    <message>
        <source>Bro&amp;wse…</source>
        <translation>参照(&amp;W)…</translation>
    </message>
    <message>
        <source>Chooses the ROM file.</source>
        <translation>ROM ファイルを選択します。</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>サウンド</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>参照(&amp;B)…</translation>
    </message>
    <message>
        <source>Chooses the key code file.</source>
        <translation>キーコードファイルを選択します。</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>マウス</translation>
    </message>
    <message>
        <source>Just-in-time compiler</source>
        <translation>JIT (実行時) コンパイラー</translation>
    </message>
    <message>
        <source>Processor emulation</source>
        <translation>プロセッサーのエミュレーション</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>%1, %2 × %3</source>
        <translation>%1、%2 × %3</translation>
    </message>
    <message>
        <source>Reset to Default (empty)</source>
        <translation>既定値に戻す (空欄)</translation>
    </message>
    <message>
        <source>Reset to Default (%1)</source>
        <translation>既定値に戻す (%1)</translation>
    </message>
    <message>
        <source>If unsure, leave it empty.</source>
        <translation>わからない場合は空欄のままにします。</translation>
    </message>
    <message>
        <source>Until you choose one it says &quot;%1&quot;.</source>
        <translation>選択するまでは「%1」と表示されます。</translation>
    </message>
    <message>
        <source>If unsure, leave it at &quot;%1&quot;.</source>
        <translation>わからない場合は「%1」のままにします。</translation>
    </message>
    <message>
        <source>Writes &quot;%1&quot;.</source>
        <translation>ファイルでは「%1」です。</translation>
    </message>
    <message>
        <source>Writes &quot;%1&quot;, %2.</source>
        <translation>ファイルでは「%1」(%2) です。</translation>
    </message>
    <message>
        <source>Changed.</source>
        <translation>変更されています。</translation>
    </message>
    <message>
        <source>Not the default.</source>
        <translation>既定値ではありません。</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>起動</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>ハードウェア</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>描画</translation>
    </message>
    <message>
        <source>Serial ports</source>
        <translation>シリアルポート</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>desktop::AgreementSheet</name>
    <message>
        <source>Beta Agreement</source>
        <translation>ベータ版の同意事項</translation>
    </message>
    <message>
        <source>&lt;p&gt;This program is a beta version. It changes three things on this computer:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Quillon&apos;s preferences file, when you press Save, Start or Copy, and once when there is none yet;&lt;/li&gt;&lt;li&gt;its own settings, when you press Done in its preferences;&lt;/li&gt;&lt;li&gt;the disk images that you ask it to make.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Keep a copy of what you cannot do without. Disagree ends the program at once, without saving.&lt;/p&gt;</source>
        <translation>&lt;p&gt;このプログラムはベータ版です。このコンピューターの次の 3 つを変更します。&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Quillon の設定ファイル (「保存」、「開始」または「コピー」を押したとき、およびファイルがまだないときに一度)&lt;/li&gt;&lt;li&gt;このプログラム自身の設定 (プログラムの設定で「完了」を押したとき)&lt;/li&gt;&lt;li&gt;作成を指示したディスクイメージ&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;失うと困るものはコピーを取っておいてください。「同意しない」を押すと、保存せずに直ちにプログラムを終了します。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Disagree</source>
        <translation>同意しない(&amp;D)</translation>
    </message>
    <message>
        <source>Ends the program at once, without saving.</source>
        <translation>保存せずに直ちにプログラムを終了します。</translation>
    </message>
    <message>
        <source>&amp;Agree</source>
        <translation>同意する(&amp;A)</translation>
    </message>
    <message>
        <source>Closes this sheet.</source>
        <translation>このウィンドウを閉じます。</translation>
    </message>
</context>
<context>
    <name>desktop::ChangesList</name>
    <message>
        <source>(empty)</source>
        <translation>(空欄)</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 個追加</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 個削除</translation>
    </message>
    <message>
        <source>in another order</source>
        <translation>順序の変更</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>保存されていない変更</translation>
    </message>
    <message>
        <source>Put &amp;All Back</source>
        <translation>すべて元に戻す(&amp;A)</translation>
    </message>
    <message>
        <source>Takes back everything that is not saved.</source>
        <translation>保存されていないものをすべて元に戻します。</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>ディスクイメージ</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Put back %1</source>
        <translation>%1 を元に戻す</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksLine</name>
    <message>
        <source>Checking the files…</source>
        <translation>ファイルを確認しています…</translation>
    </message>
    <message>
        <source>What keeps Quillon from starting, and what else deserves a look. Press it to see all of it.</source>
        <translation>Quillon の開始を妨げているものと、そのほかに確認すべきものです。押すとすべて表示します。</translation>
    </message>
    <message>
        <source>Ready to start.</source>
        <translation>開始できます。</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>ほか %1 件。</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksList</name>
    <message>
        <source>What to Look At Before Starting</source>
        <translation>開始する前に確認すること</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksView</name>
    <message>
        <source>%1, with something to look at</source>
        <translation>%1、確認すべきことがあります</translation>
    </message>
</context>
<context>
    <name>desktop::CreateSheet</name>
    <message>
        <source>New Blank Image</source>
        <translation>新しい空のディスクイメージ</translation>
    </message>
    <message>
        <source>The size in megabytes. 100 if this is no whole number.</source>
        <translation>サイズ (MB 単位) です。整数でない場合は 100 になります。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Size in megabytes</source>
        <translation>サイズ (MB 単位)</translation>
    </message>
    <message>
        <source>&amp;Size (MB):</source>
        <translation>サイズ (MB)(&amp;S):</translation>
    </message>
    <message>
        <source>Makes the image, and then closes this sheet.</source>
        <translation>ディスクイメージを作成し、このウィンドウを閉じます。</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>選択(&amp;H)…</translation>
    </message>
    <message>
        <source>Chooses the folder for this and later images, until you quit.</source>
        <translation>プログラムを終了するまでの間、これ以降のディスクイメージのフォルダーを選択します。</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>フォルダー(&amp;F):</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Please choose another one.</source>
        <translation>このフォルダーには書き込めません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Images go here because you cannot write to the folder of this program, &quot;%1&quot;.</source>
        <translation>このプログラムのフォルダー「%1」に書き込めないため、ディスクイメージはここに作成されます。</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>空き容量: %1</translation>
    </message>
    <message>
        <source>Only moves the indicator; making an image does not.</source>
        <translation>表示を動かすだけです。ディスクイメージの作成では動きません。</translation>
    </message>
    <message>
        <source>&amp;Animate</source>
        <translation>アニメーション(&amp;A)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>The name of the disk image, without &quot;.dsk&quot;.</source>
        <translation>「.dsk」を除いたディスクイメージの名前です。</translation>
    </message>
    <message>
        <source>Add to the L&amp;ist…</source>
        <translation>リストに追加(&amp;I)…</translation>
    </message>
    <message>
        <source>Closes this sheet and opens Add… at the new disk image.</source>
        <translation>このウィンドウを閉じ、新しいディスクイメージの場所で「追加…」を開きます。</translation>
    </message>
    <message>
        <source>The folder that the disk image goes to.</source>
        <translation>ディスクイメージを作成するフォルダーです。</translation>
    </message>
</context>
<context>
    <name>desktop::DiagnosticsWindow</name>
    <message>
        <source>Diagnostics</source>
        <translation>診断</translation>
    </message>
    <message>
        <source>For finding faults in this program. None of it is saved.</source>
        <translation>このプログラムの不具合を調べるためのものです。何も保存されません。</translation>
    </message>
    <message>
        <source>Read the local l&amp;ist</source>
        <translation>ローカルリストを読む(&amp;I)</translation>
    </message>
    <message>
        <source>The table of disk images shows the second of two equal lists. You see no difference.</source>
        <translation>ディスクイメージの表に、同じ内容の 2 つのリストのうち 2 番目を表示します。見た目は変わりません。</translation>
    </message>
    <message>
        <source>Tr&amp;y the save panel…</source>
        <translation>保存パネルを試す(&amp;Y)…</translation>
    </message>
    <message>
        <source>Shows a panel and writes the chosen place to standard output. Nothing is made.</source>
        <translation>パネルを表示し、選択した場所を標準出力に書き出します。何も作成されません。</translation>
    </message>
</context>
<context>
    <name>desktop::EmptyHint</name>
    <message>
        <source>No disk images yet.</source>
        <translation>ディスクイメージはまだありません。</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>追加…</translation>
    </message>
    <message>
        <source>Adds disk images to the list (the key Insert does so, too).</source>
        <translation>リストにディスクイメージを追加します (Insert キーでも追加できます)。</translation>
    </message>
    <message>
        <source>New Blank Image…</source>
        <translation>新しい空のディスクイメージ…</translation>
    </message>
    <message>
        <source>Makes an empty disk image.</source>
        <translation>空のディスクイメージを作成します。</translation>
    </message>
</context>
<context>
    <name>desktop::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>設定を検索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>Type words of a setting, of a choice that it offers, or of a disk image.</source>
        <translation>設定、その選択肢、またはディスクイメージに含まれる語を入力してください。</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>検索結果</translation>
    </message>
</context>
<context>
    <name>desktop::HelpPane</name>
    <message>
        <source>Move to a setting to read here what it does.</source>
        <translation>設定に移動すると、ここに説明が表示されます。</translation>
    </message>
    <message>
        <source>In the file: %1</source>
        <translation>ファイルの行: %1</translation>
    </message>
</context>
<context>
    <name>desktop::Menus</name>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Reset This Page</source>
        <translation>このページを既定値に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>設定(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Diagnostics…</source>
        <translation>診断(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Beta Agreement…</source>
        <translation>ベータ版の同意事項(&amp;B)…</translation>
    </message>
    <message>
        <source>&amp;About Quillon Settings</source>
        <translation>Quillon の設定について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Pre&amp;view…</source>
        <translation>プレビュー(&amp;V)…</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>開始(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;New Blank Image…</source>
        <translation>新しい空のディスクイメージ(&amp;N)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>プリセット(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Find a Setting…</source>
        <translation>設定を検索(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Add Disk Image…</source>
        <translation>ディスクイメージを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>A mark for yourself while the window is open. It changes no setting and is not saved.</source>
        <translation>ウィンドウを開いている間のご自身のための目印です。設定は変わらず、保存もされません。</translation>
    </message>
</context>
<context>
    <name>desktop::PreferencesWindow</name>
    <message>
        <source>Quillon Settings Preferences</source>
        <translation>プログラムの設定</translation>
    </message>
    <message>
        <source>Where Quillon is</source>
        <translation>Quillon の場所</translation>
    </message>
    <message>
        <source>Start is disabled until a place is chosen.</source>
        <translation>場所を選択するまで「開始」は無効です。</translation>
    </message>
    <message>
        <source>&amp;Beside this program</source>
        <translation>このプログラムと同じ場所(&amp;B)</translation>
    </message>
    <message>
        <source>Quillon.app in the folder of this program.</source>
        <translation>このプログラムのフォルダーにある Quillon.app です。</translation>
    </message>
    <message>
        <source>&amp;Somewhere else</source>
        <translation>その他の場所(&amp;S)</translation>
    </message>
    <message>
        <source>The place named below. &quot;Quillon&quot; must be part of the name.</source>
        <translation>下に指定した場所です。名前に「Quillon」が含まれている必要があります。</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>テスト(&amp;T)</translation>
    </message>
    <message>
        <source>Starts what the location names, unchecked.</source>
        <translation>指定した場所にあるものを、確認せずに開始します。</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>完了(&amp;D)</translation>
    </message>
    <message>
        <source>Applies and stores the choices.</source>
        <translation>選択した内容を適用して保存します。</translation>
    </message>
    <message>
        <source>Show the SCS&amp;I tab</source>
        <translation>SCSI タブを表示する(&amp;I)</translation>
    </message>
    <message>
        <source>Whether the settings window has a tab for SCSI. It shows up with Done.</source>
        <translation>設定ウィンドウに SCSI のタブを表示するかどうかです。「完了」を押すと表示されます。</translation>
    </message>
    <message>
        <source>&amp;Quit after Start</source>
        <translation>開始したら終了する(&amp;Q)</translation>
    </message>
    <message>
        <source>Whether Start also ends this program.</source>
        <translation>「開始」を押したときに、このプログラムも終了するかどうかです。</translation>
    </message>
    <message>
        <source>The application that Start launches. &quot;Quillon&quot; must be part of the name.</source>
        <translation>「開始」で起動するアプリケーションです。名前に「Quillon」が含まれている必要があります。</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>場所(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>選択(&amp;C)…</translation>
    </message>
    <message>
        <source>Chooses the application.</source>
        <translation>アプリケーションを選択します。</translation>
    </message>
    <message>
        <source>&amp;Not set up</source>
        <translation>未設定(&amp;N)</translation>
    </message>
    <message>
        <source>A path with &quot;Quillon&quot; in it, such as /opt/Quillon.app</source>
        <translation>「Quillon」を含むパス (例: /opt/Quillon.app)</translation>
    </message>
</context>
<context>
    <name>desktop::PreviewWindow</name>
    <message>
        <source>Preview of the Preferences File</source>
        <translation>設定ファイルのプレビュー</translation>
    </message>
    <message>
        <source>The typed place names no file.</source>
        <translation>入力された場所がファイルを指していません。</translation>
    </message>
    <message>
        <source>There is no file yet.</source>
        <translation>まだファイルがありません。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>ファイルを読み取れません: %1</translation>
    </message>
    <message>
        <source>In the &amp;file now:</source>
        <translation>現在のファイル(&amp;F):</translation>
    </message>
    <message>
        <source>After a &amp;save:</source>
        <translation>保存後(&amp;S):</translation>
    </message>
    <message>
        <source>- will be dropped   * will be changed   + will be added</source>
        <translation>- 削除されます   * 変更されます   + 追加されます</translation>
    </message>
    <message>
        <source>The file is not UTF-8 text.</source>
        <translation>ファイルは UTF-8 のテキストではありません。</translation>
    </message>
</context>
<context>
    <name>desktop::SearchHits</name>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>%1 — %2: %3</source>
        <translation>%1 — %2: %3</translation>
    </message>
    <message>
        <source>Nothing found for &quot;%1&quot;.</source>
        <translation>「%1」は見つかりませんでした。</translation>
    </message>
</context>
<context>
    <name>desktop::SettingsWindow</name>
    <message>
        <source>Quillon Settings</source>
        <translation>Quillon の設定</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>The preferences file that Save and Start write. Type another place to save to before the first save.</source>
        <translation>「保存」と「開始」で書き込まれる設定ファイルです。別の場所に保存する場合は、最初に保存する前にその場所を入力してください。</translation>
    </message>
    <message>
        <source>Preferences fi&amp;le:</source>
        <translation>設定ファイル(&amp;L):</translation>
    </message>
    <message>
        <source>Preferences file</source>
        <translation>設定ファイル</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copies the preferences file of your home folder to the place named here, if there is none yet.</source>
        <translation>ここに指定した場所にまだファイルがなければ、ホームフォルダーの設定ファイルをコピーします。</translation>
    </message>
    <message>
        <source>Prefere&amp;nces…</source>
        <translation>設定(&amp;N)…</translation>
    </message>
    <message>
        <source>Where Quillon is, and how this program behaves.</source>
        <translation>Quillon の場所と、このプログラムの動作です。</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>開始(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Writes the preferences file.</source>
        <translation>設定ファイルに書き込みます。</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Ends the program without saving.</source>
        <translation>保存せずにプログラムを終了します。</translation>
    </message>
    <message>
        <source>Writes the preferences file and starts Quillon.</source>
        <translation>設定ファイルに書き込み、Quillon を開始します。</translation>
    </message>
    <message>
        <source>Start is disabled: choose where Quillon is in Edit &gt; Preferences.</source>
        <translation>「開始」は無効です。「編集 &gt; 設定」で Quillon の場所を選択してください。</translation>
    </message>
    <message>
        <source>About Quillon Settings</source>
        <translation>Quillon の設定について</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Quillon Settings %1&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Sets up Quillon, an emulator of 68k Macintosh computers, and starts it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Quillon の設定 %1&lt;/b&gt;&lt;/p&gt;&lt;p&gt;68k Macintosh のエミュレーター Quillon を設定し、開始します。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>desktop::UnsavedBar</name>
    <message>
        <source>Lists what is not saved, to look at it or to take it back.</source>
        <translation>保存されていないものを一覧表示します。確認したり元に戻したりできます。</translation>
    </message>
    <message>
        <source>1 unsaved change</source>
        <translation>保存されていない変更 1 件</translation>
    </message>
    <message>
        <source>%1 unsaved changes</source>
        <translation>保存されていない変更 %1 件</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 に保存しました</translation>
    </message>
    <message>
        <source>Quillon was started %1</source>
        <translation>%1 に Quillon を開始しました</translation>
    </message>
    <message>
        <source>Quillon was not started: it could not be executed</source>
        <translation>Quillon を開始できませんでした: 実行できません</translation>
    </message>
    <message>
        <source>The file was not saved</source>
        <translation>ファイルは保存されませんでした</translation>
    </message>
</context>
<context>
    <name>desktop::VolumeMenu</name>
    <message>
        <source>Move &amp;Up</source>
        <translation>上に移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>下に移動(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>取り除く(&amp;R)</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>フォルダーで表示(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>パスをコピー(&amp;C)</translation>
    </message>
</context>
<context>
    <name>desktop::VolumeModel</name>
    <message>
        <source>This file is missing.</source>
        <translation>このファイルは見つかりません。</translation>
    </message>
    <message>
        <source>This file cannot be reached: %1</source>
        <translation>このファイルにアクセスできません: %1</translation>
    </message>
    <message>
        <source>1 disk image</source>
        <translation>ディスクイメージ 1 個</translation>
    </message>
    <message numerus="yes">
        <source>%n disk images</source>
        <translation>
            <numerusform>ディスクイメージ %n 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>%n 個が見つかりません</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of &quot;12 disk images, 1.3 GB, 2 missing&quot;</comment>
        <translation>、</translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <translation>
            <numerusform>%n 個にアクセスできません</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>desktop::VolumeView</name>
    <message numerus="yes">
        <source>%n disk images</source>
        <translation>
            <numerusform>ディスクイメージ %n 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>desktop::VolumesList</name>
    <message>
        <source>Disk images</source>
        <translation>ディスクイメージ</translation>
    </message>
    <message>
        <source>The disk images of the Macintosh, in their order.</source>
        <translation>Macintosh のディスクイメージを順番に示します。</translation>
    </message>
    <message>
        <source>Disk i&amp;mages:</source>
        <translation>ディスクイメージ(&amp;M):</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Adds disk images to the list.</source>
        <translation>リストにディスクイメージを追加します。</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>取り除く(&amp;V)</translation>
    </message>
    <message>
        <source>Takes the selected disk image off the list. The file stays.</source>
        <translation>選択したディスクイメージをリストから取り除きます。ファイルは残ります。</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上に移動(&amp;U)</translation>
    </message>
    <message>
        <source>Moves the selected disk images one place up (%1).</source>
        <translation>選択したディスクイメージを 1 つ上に移動します (%1)。</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>下に移動(&amp;W)</translation>
    </message>
    <message>
        <source>Moves the selected disk images one place down (%1).</source>
        <translation>選択したディスクイメージを 1 つ下に移動します (%1)。</translation>
    </message>
    <message>
        <source>New &amp;Blank Image…</source>
        <translation>新しい空のディスクイメージ(&amp;B)…</translation>
    </message>
    <message>
        <source>Makes an empty disk image. It is not added to the list.</source>
        <translation>空のディスクイメージを作成します。リストには追加されません。</translation>
    </message>
</context>
</TS>
