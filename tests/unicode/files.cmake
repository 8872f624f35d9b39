# Option files with names and contents beyond ASCII.
file(WRITE "${work}/wünsche 😀.txt" "; 😀 a comment
--text=aus der Datei 𝒳😀
-mood 😀
größe 😀
-option-file=次 📁.txt
")
file(WRITE "${work}/次 📁.txt" "--text=nested 📁\r\n")
