box1=[ a\b	c ];
load /tmp/x/data.txt;
box3=data;
save /tmp/out.m box1 -ascii ;
box2= [1  2      ; 3  4       ]; 
load /tmp/raw -ascii ;
box4=raw;
box6=box2
